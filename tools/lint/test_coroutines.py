import unittest

import coroutines
from tree import Tree

BAD = [
    "auto r = co_await worker.run(Request{0x10});",
    "auto r = co_await worker.run({0x10, 0x20});",
    "co_await worker.run([this] { return read(); });",
    "co_await worker.run([code]() mutable -> Reading { return read(code); });",
    "if ((co_await worker.run(Request{1})) == 2) { stop(); }",
    "use(Request{1}, co_await worker.read());",
    "co_return Pair{co_await first(), 2};",
    "results.push_back({co_await first(), 2});",
    "while (co_await worker.run(Request{1})) continue;",
    "auto r = co_await call(worker->code, Request{1});",
    "auto r = co_await\n    worker.run(\n        Request{\n            .code = 1});",
    "auto c = [this]() -> Task<void> { co_await sleep(loop_, 1ms); };",
    "auto c = [&] { co_return; };",
    "scope.start([x](int v) -> Task<> { co_await sleep(loop, v); }(3));",
]
GOOD = [
    "auto operation = worker.run(body); auto r = co_await operation;",
    "Request request{0x10}; auto r = co_await worker.run(request);",
    "if (co_await IsCancelled()) { stop(); }",
    "for (const Code code : codes) { co_await read(code); }",
    "const Slept slept = co_await sleep(loop, 600ms); if (slept == Slept::cancelled) co_return;",
    "auto c = [](MainLoop& loop) -> Task<void> { co_await sleep(loop, 1ms); };",
    "auto c = [](int v) { co_return; };",
    "scope.start([](int v) -> Task<std::vector<int>> { co_await sleep(loop, v); }(3));",
    "queue.submit([this] { read(); }); co_await finished;",
    "auto f = [this] { return [](int v) -> Task<> { co_await sleep(v); }; };",
    "auto r = co_await read(codes[0], table[index]);",
    "for (auto& [code, value] : values) { co_await write(code, value); }",
    "[[maybe_unused]] auto r = co_await read();",
    "do { r = co_await read(); } while (r.failed());",
    "try { co_await read(); } catch (...) { stop(); }",
    "switch (x) { case 1: { co_await read(); } default: break; }",
    "// co_await worker.run(Request{1})",
    'log("co_await {", co_await read());',
    "Awaiter operator co_await() && noexcept { return Awaiter{frame_}; }",
    "struct S : Base { int x{1}; Task<> run() { co_await read(); } };",
]


def findings(body):
    text = f"Task<void> body() {{\n{body}\nco_return;\n}}\n"
    return coroutines.check(Tree({"src/model/Display.cpp": text}))


class CoroutinesTest(unittest.TestCase):
    def test_what_breaks_is_found(self):
        for body in BAD:
            with self.subTest(body):
                self.assertEqual(len(findings(body)), 1)

    def test_what_works_is_left_alone(self):
        for body in GOOD:
            with self.subTest(body):
                self.assertEqual(findings(body), [])

    def test_the_finding_names_the_line(self):
        self.assertEqual(findings("int x = 0;\nco_await run(Request{x});")[0].line, 3)


if __name__ == "__main__":
    unittest.main()
