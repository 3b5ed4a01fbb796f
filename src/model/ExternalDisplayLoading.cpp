// How an ExternalDisplay finds out what its monitor can do.
#include <algorithm>

#include "mccs/MCCS.h"
#include "model/ExternalDisplay.h"
#include "model/VCPCodes.h"
#include "persistence/Store.h"
#include "text/Hex.h"

namespace vantrel::model {

using platform::Log;
using platform::LogLevel;
using Kind = mccs::VCPInfo::Kind;

namespace {

constexpr int loadAttempts = 4;

std::vector<std::uint16_t> namedValues(const mccs::VCPInfo& info) {
    std::vector<std::uint16_t> values;
    values.reserve(info.valueNames.size());
    for (const auto& [value, name] : info.valueNames) values.push_back(value);
    return values;
}

std::string listOf(const std::vector<std::uint16_t>& inputs) {
    std::string list;
    for (const std::uint16_t input : inputs) {
        if (!list.empty()) list += ", ";
        list += "0x" + text::upperHex(input);
    }
    return list;
}

std::string describe(std::optional<std::uint16_t> input) {
    return input ? "0x" + text::upperHex(*input) : "unknown";
}

}  // namespace

runtime::Task<> ExternalDisplay::load(Capabilities from) {
    const bool force = from == Capabilities::fetched;
    if (!worker_ || loadState() == LoadState::loading || isReturningToMac()) co_return;
    if (loadState() == LoadState::unavailable && !force) co_return;
    if (loadState() == LoadState::ready && !force) {
        co_await refreshValues();
        co_return;
    }
    loadState_.set(LoadState::loading);
    features_.set({});
    log(Log::display, LogLevel::standard,
        std::string(": loading features (force capabilities: ") + (force ? "true" : "false") + ")");
    co_await loadCapabilities(from);
    if (!capabilities()) {
        const ReadResult answer = co_await read(brightness, loadAttempts);
        if (answer.kind == ReadResult::Kind::failed) {
            log(Log::display, LogLevel::error, ": no DDC answer, marking unavailable");
            finishLoading(LoadState::unavailable);
            co_return;
        }
    }
    const std::vector<std::uint8_t> codes = codesToLoad();
    for (const std::uint8_t code : codes) co_await loadFeature(code);
    finishLoading(LoadState::ready);
    const auto input = feature(inputSource);
    log(Log::display, LogLevel::standard,
        ": loaded " + std::to_string(features().size()) + " features, inputs " + listOf(inputs()) +
            ", current input " + describe(input ? input->current.get() : std::nullopt));
}

runtime::Task<> ExternalDisplay::loadCapabilities(Capabilities from) {
    if (from == Capabilities::cachedIfAny) {
        if (auto cached = persistence::Store::capabilities(platform_.defaults, key_)) {
            capabilities_.set(std::move(cached));
            co_return;
        }
    }
    auto fetching = worker_->run([](ddc::DDCChannel& channel) { return channel.capabilities(); });
    const std::optional<std::string> text = co_await fetching;
    std::optional<mccs::MonitorCapabilities> parsed;
    if (text) {
        parsed = mccs::MonitorCapabilities::parse(*text);
        persistence::Store::setCapabilities(platform_.defaults, parsed, key_);
    }
    capabilities_.set(std::move(parsed));
}

std::vector<std::uint8_t> ExternalDisplay::codesToLoad() const {
    std::vector<std::uint8_t> codes(defaultCodes.begin(), defaultCodes.end());
    if (!capabilities()) return codes;
    const std::vector<std::uint8_t>& listed = capabilities()->codes;
    std::erase_if(codes,
                  [&listed](std::uint8_t code) { return std::ranges::find(listed, code) == listed.end(); });
    const auto defaultsListed = codes.size();
    std::ranges::copy_if(listed, std::back_inserter(codes), [&](std::uint8_t code) {
        const auto end = codes.begin() + static_cast<std::ptrdiff_t>(defaultsListed);
        return !mccs::MCCS::hidden().contains(code) && std::find(codes.begin(), end, code) == end;
    });
    return codes;
}

std::span<const std::uint16_t> ExternalDisplay::listedValues(std::uint8_t code) const {
    if (!capabilities()) return {};
    const auto found = capabilities()->values.find(code);
    return found == capabilities()->values.end() ? std::span<const std::uint16_t>() : found->second;
}

runtime::Task<> ExternalDisplay::loadFeature(std::uint8_t code) {
    auto loaded = std::make_shared<VCPFeature>(code, mccs::MCCS::info(code, listedValues(code)));
    if (loaded->info.kind == Kind::action) {
        addFeature(std::move(loaded));
        co_return;
    }
    const ReadResult result = co_await read(code, loadAttempts);
    if (result.kind == ReadResult::Kind::unsupported) co_return;
    if (code == inputSource) {
        addInputFeature(result);
        co_return;
    }
    const bool isChoice = loaded->info.kind == Kind::choice;
    const bool hasValue = result.kind == ReadResult::Kind::value;
    // A choice that the monitor declares can be made without knowing what is chosen now.
    if (!hasValue && !(isChoice && capabilities())) co_return;

    const auto listed = listedValues(code);
    std::vector<std::uint16_t> options(listed.begin(), listed.end());
    if (isChoice && options.empty()) options = namedValues(loaded->info);
    if (hasValue) {
        const auto [current, maximum] = result.reading;
        const bool isNew = std::ranges::find(options, current) == options.end();
        if (isChoice && !listed.empty() && isNew) options.push_back(current);
        loaded->current.set(current);
        loaded->maximum.set(std::max<std::uint16_t>(maximum, 1));
    }
    loaded->options.set(std::move(options));
    addFeature(std::move(loaded));
}

void ExternalDisplay::addInputFeature(const ReadResult& result) {
    auto input = std::make_shared<VCPFeature>(inputSource, mccs::MCCS::info(inputSource));
    input->options.set(inputSettings_.customInputs().value_or(detectedInputs()));
    addFeature(input);
    if (result.kind == ReadResult::Kind::value) input->current.set(normalizedInput(result.reading.current));
    learnMacInputIfUnknown();
}

void ExternalDisplay::addFeature(std::shared_ptr<VCPFeature> feature) {
    Features all = features();
    const std::uint8_t code = feature->code;
    all.insert_or_assign(code, std::move(feature));
    features_.set(std::move(all));
}

void ExternalDisplay::finishLoading(LoadState state) {
    loadState_.set(state);
    updateDimmer();
}

}  // namespace vantrel::model
