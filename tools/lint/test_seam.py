import unittest

import seam
from tree import Tree

BAD = [
    "auto t = std::chrono::steady_clock::now();",
    "auto t = system_clock :: now();",
    "srand(7);",
    "int n = rand();",
    "int n = std::rand();",
    "auto t = time(nullptr);",
    "auto t = std::time(&now);",
    "auto t = std::clock();",
    "gettimeofday(&t, nullptr);",
    "clock_gettime(CLOCK_MONOTONIC, &t);",
    "std::this_thread::sleep_for(1ms);",
    "std::this_thread::sleep_until(t);",
    "const double now = CFAbsoluteTimeGetCurrent();",
    "usleep(50);",
    "::sleep(1);",
    "QTest::qWait(50);",
    "std::thread thread(body);",
    "std::jthread thread(body);",
    "auto f = std::async(body);",
    "std::condition_variable changed;",
    "std::random_device device;",
    "std::mt19937 engine(1);",
    "std::mt19937_64 engine(1);",
]
GOOD = [
    "scheduler.sleepFor(50us);",
    "const Slept slept = co_await sleep(loop, 600ms);",
    "std::chrono::time_point<MonotonicClock> time() const;",
    "plan.inputSwitch.time(3);",
    "const auto due = clock.now();",
    "// std::this_thread::sleep_for would block",
    'require(false, "usleep(50) and std::thread");',
    "std::thread::id id;",
    "static thread_local int depth = 0;",
    "operand(1);",
    "const std::lock_guard lock(mutex_);",
]


def findings(path, text):
    return seam.check(Tree({path: text}))


class SeamTest(unittest.TestCase):
    def test_every_way_past_the_seam_is_found(self):
        for line in BAD:
            with self.subTest(line):
                self.assertEqual(len(findings("src/ddc/DDCChannel.cpp", f"void f() {{\n{line}\n}}\n")), 1)

    def test_what_only_looks_like_one_is_left_alone(self):
        for line in GOOD:
            with self.subTest(line):
                self.assertEqual(findings("src/ddc/DDCChannel.cpp", line + "\n"), [])

    def test_tests_and_fuzzers_go_through_the_seam_as_well(self):
        for path in ("tests/ddc/DDCChannelTest.cpp", "fuzz/ReplyFuzz.cpp"):
            self.assertEqual(len(findings(path, BAD[0])), 1)

    def test_the_implementations_of_the_seam_are_free(self):
        for path in ("src/runtime/RealScheduler.cpp", "src/platform/simulated/VirtualTime.h"):
            self.assertEqual(findings(path, "\n".join(BAD)), [])

    def test_an_exception_is_for_one_thing(self):
        path = "tests/simulated/VirtualTimeTest.cpp"
        self.assertEqual(findings(path, "std::thread thread(body);"), [])
        self.assertEqual(len(findings(path, "usleep(50);")), 1)

    def test_a_test_may_use_an_engine_whose_seed_it_shows(self):
        engine = "std::mt19937_64 random(seed);\n"
        self.assertEqual(findings("tests/ddc/ATest.cpp", seam.SEEDS + "\n" + engine), [])
        self.assertEqual(len(findings("tests/ddc/ATest.cpp", engine)), 1)
        self.assertEqual(len(findings("src/ddc/A.cpp", seam.SEEDS + "\n" + engine)), 1)

    def test_the_finding_names_the_line(self):
        (finding,) = findings("src/a/B.h", "\n/*\n*/ int x = rand();\n")
        self.assertEqual(finding.line, 3)


if __name__ == "__main__":
    unittest.main()
