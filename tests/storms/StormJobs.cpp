#include "storms/StormJobs.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <span>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "runtime/Fatal.h"
#include "runtime/RealScheduler.h"
#include "storms/Storm.h"

namespace vantrel::storms {

using namespace std::chrono_literals;

namespace {

constexpr auto pollPause = 100ms;
constexpr auto progressPause = 10s;
// No storm takes that long, even with sanitizers; one that does goes in circles.
constexpr auto patience = 240s;
// A rare state may well be missed by fewer.
constexpr std::uint64_t seedsThatSeeEverything = 2000;

// What a process tells the one that started it.
struct Report {
    pid_t process = 0;
    std::uint64_t seed = 0;
    std::uint64_t done = 0;
    std::uint64_t failures = 0;
    bool isFinished = false;
    Counts counts;
};

void printFailure(std::uint64_t seed, const std::string& text, const std::string& replay) {
    std::printf("\nseed %llu: %s\n  replay: %s --seed %llu --log\n", static_cast<unsigned long long>(seed),
                text.c_str(), replay.c_str(), static_cast<unsigned long long>(seed));
    std::fflush(stdout);
}

void runJob(const StormJobs& jobs, unsigned job, Report& report) {
    for (std::uint64_t index = job; index < jobs.count; index += jobs.jobs) {
        report.seed = jobs.first + index;
        if (const auto broken = Storm::run(report.seed, Storm::Output::nothing, report.counts)) {
            ++report.failures;
            printFailure(report.seed, *broken, jobs.replay);
            if (!jobs.keepsGoing) break;
        }
        ++report.done;
    }
    report.isFinished = true;
}

std::span<Report> sharedReports(unsigned jobs) {
    void* const memory =
        mmap(nullptr, sizeof(Report) * jobs, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    runtime::require(memory != MAP_FAILED, "no memory for the reports of storms");
    const std::span reports(static_cast<Report*>(memory), jobs);
    std::ranges::uninitialized_default_construct(reports);
    return reports;
}

std::uint64_t doneBy(std::span<const Report> reports) {
    std::uint64_t done = 0;
    for (const Report& report : reports) done += report.done;
    return done;
}

void printProgress(std::uint64_t done, std::uint64_t count, double seconds) {
    std::printf("%llu of %llu seeds, %.1f per second\n", static_cast<unsigned long long>(done),
                static_cast<unsigned long long>(count), static_cast<double>(done) / std::max(seconds, 0.001));
    std::fflush(stdout);
}

// Looks after the processes until all have ended; true when each did its work.
bool watch(const StormJobs& jobs, std::span<Report> reports) {
    runtime::RealScheduler clock;
    const auto start = clock.now();
    auto progress = start;
    std::vector<std::pair<std::uint64_t, runtime::MonotonicTime>> since(reports.size(), {0, start});
    bool isGood = true;
    for (std::size_t running = reports.size(); running > 0;) {
        clock.sleepFor(pollPause);
        const auto now = clock.now();
        for (std::size_t job = 0; job < reports.size(); ++job) {
            Report& report = reports[job];
            if (report.process == 0) continue;
            if (std::exchange(since[job].first, report.seed) != report.seed) since[job].second = now;
            if (now - since[job].second > patience) kill(report.process, SIGKILL);
            if (waitpid(report.process, nullptr, WNOHANG) != report.process) continue;
            report.process = 0;
            --running;
            if (!report.isFinished)
                printFailure(report.seed, "the program stopped, or never came to an end", jobs.replay);
            isGood = isGood && report.isFinished && report.failures == 0;
        }
        if (now - progress < progressPause) continue;
        progress = now;
        printProgress(doneBy(reports), jobs.count, std::chrono::duration<double>(now - start).count());
    }
    printProgress(doneBy(reports), jobs.count, std::chrono::duration<double>(clock.now() - start).count());
    return isGood;
}

bool printCounts(const Counts& counts, std::uint64_t seeds) {
    std::printf("%.0f hours of virtual time\n", counts.virtualHours);
    bool sawEverything = true;
    for (std::size_t index = 0; index < counts.of.size(); ++index) {
        std::printf("%12llu  %s\n", static_cast<unsigned long long>(counts.of[index]),
                    std::string(seenNames[index]).c_str());
        sawEverything = sawEverything && counts.of[index] > 0;
    }
    if (sawEverything || seeds < seedsThatSeeEverything) return true;
    std::printf("something that storms are there for never happened\n");
    return false;
}

}  // namespace

bool StormJobs::run() const {
    const std::span<Report> reports = sharedReports(jobs);
    for (unsigned job = 0; job < jobs; ++job) {
        std::fflush(stdout);
        const pid_t process = fork();
        runtime::require(process >= 0, "no process for storms");
        if (process == 0) {
            runJob(*this, job, reports[job]);
            _exit(0);
        }
        reports[job].process = process;
    }
    bool isGood = watch(*this, reports);
    Counts counts;
    for (const Report& report : reports) counts.add(report.counts);
    const bool sawEverything = printCounts(counts, count);
    isGood = isGood && sawEverything;
    munmap(reports.data(), reports.size_bytes());
    return isGood;
}

}  // namespace vantrel::storms
