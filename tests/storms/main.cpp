// Storms from the command line:
//
//     storm --seeds 2000 --jobs 2     seeds 1 to 2000 in two processes
//     storm --seed 17 --log           one storm, with the program's log
#include <CLI/CLI.hpp>
#include <cstdio>

#include "storms/Storm.h"
#include "storms/StormJobs.h"

int main(int argc, char** argv) {
    using namespace vantrel::storms;
    StormJobs jobs;
    jobs.replay = argv[0];
    std::uint64_t seed = 0;
    bool printsLog = false;
    CLI::App app("Random desks, users and events, and what has to hold in all of them.");
    app.add_option("--seeds", jobs.count, "How many seeds");
    app.add_option("--from", jobs.first, "The first seed");
    app.add_option("--jobs", jobs.jobs, "How many processes")->check(CLI::Range(1, 64));
    app.add_flag("--keep-going", jobs.keepsGoing, "Go on after a failure");
    const auto* const one = app.add_option("--seed", seed, "Only this seed");
    app.add_flag("--log", printsLog, "Print the log of the one seed");
    CLI11_PARSE(app, argc, argv);
    if (one->count() == 0) return jobs.run() ? 0 : 1;

    Counts counts;
    const auto broken = Storm::run(seed, printsLog ? Storm::Output::log : Storm::Output::nothing, counts);
    std::printf("seed %llu: %s\n", static_cast<unsigned long long>(seed),
                broken ? broken->c_str() : "all in order");
    return broken ? 1 : 0;
}
