#include "platform/recording/Recording.h"

#include <chrono>
#include <utility>

namespace vantrel::recording {

using platform::Transfer;

struct Recording::Walk {
    std::vector<Entry> entries;
    // The first entry behind the link that was opened last.
    std::size_t nextLink = 0;
    std::set<std::size_t> links;
};

std::shared_ptr<Recording::Walk> Recording::beginWalk() {
    auto walk = std::make_shared<Walk>();
    const std::lock_guard lock(mutex_);
    if (!first_) first_ = walk;
    return walk;
}

Recording::Place Recording::lookedInto(const std::shared_ptr<Walk>& walk, std::string name) {
    const std::lock_guard lock(mutex_);
    walk->entries.push_back({std::move(name), {}, std::nullopt});
    return {walk, walk->entries.size() - 1};
}

void Recording::read(const Place& place, const std::string& key, const platform::PropertyValue& value) {
    const std::lock_guard lock(mutex_);
    place.walk->entries[place.index].properties.insert_or_assign(key, value);
}

void Recording::named(const Place& place, std::uint32_t object) {
    const std::lock_guard lock(mutex_);
    objects_.insert_or_assign(object, place);
}

void Recording::opened(std::uint32_t object, const void* service) {
    const std::lock_guard lock(mutex_);
    const auto found = objects_.find(object);
    if (found == objects_.end()) return;
    const auto& [walk, index] = found->second;
    auto& link = walk->entries[index].link;
    if (!link) {
        const auto at = [&entries = walk->entries](std::size_t place) {
            return entries.begin() + static_cast<std::ptrdiff_t>(place);
        };
        link = linkWith({at(std::min(walk->nextLink, index)), at(index + 1)}, *walk);
        walk->nextLink = index + 1;
    }
    // A handle may come again for another link.
    services_.erase(service);
    if (link) services_.emplace(service, *link);
}

std::optional<std::size_t> Recording::linkWith(const std::vector<Entry>& identity, Walk& walk) {
    std::size_t link = 0;
    if (&walk == first_.get()) {
        link = links_.size();
        links_.push_back({identity, {}});
    }
    while (link < links_.size() && (links_[link].identity != identity || walk.links.contains(link))) ++link;
    if (link == links_.size()) return std::nullopt;
    walk.links.insert(link);
    return link;
}

void Recording::transferred(const void* service, Transfer transfer, runtime::MonotonicTime began) {
    const runtime::MonotonicTime ended = clock_.now();
    transfer.at = std::chrono::round<Transfer::Duration>(began - start_);
    transfer.took = std::chrono::round<Transfer::Duration>(ended - began);
    const std::lock_guard lock(mutex_);
    const auto found = services_.find(service);
    if (found != services_.end()) links_[found->second].transfers.push_back(std::move(transfer));
}

std::vector<Recording::Entry> Recording::entries() const {
    const std::lock_guard lock(mutex_);
    return first_ ? first_->entries : std::vector<Entry>();
}

std::vector<Transfer> Recording::transfers(std::size_t link) const {
    const std::lock_guard lock(mutex_);
    return links_.at(link).transfers;
}

std::optional<std::size_t> Recording::link(const void* service) const {
    const std::lock_guard lock(mutex_);
    const auto found = services_.find(service);
    if (found == services_.end()) return std::nullopt;
    return found->second;
}

}  // namespace vantrel::recording
