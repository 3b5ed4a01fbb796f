import unittest

import growth


def report(complexity, times, unit="us"):
    runs = [
        {"run_name": f"parse/{size}", "run_type": "iteration", "cpu_time": time, "time_unit": unit}
        for size, time in times.items()
    ]
    return {"benchmarks": runs + [{"run_name": "parse", "run_type": "aggregate", "big_o": complexity}]}


class GrowthTest(unittest.TestCase):
    def passes(self, *arguments):
        (result,) = growth.judge(report(*arguments))
        return result[0]

    def test_linear_growth_is_linear(self):
        self.assertTrue(self.passes("N", {1000: 10, 1000000: 12000}))

    def test_square_growth_is_not_linear(self):
        self.assertFalse(self.passes("N", {1000: 10, 1000000: 10000000}))

    def test_linear_growth_is_not_constant(self):
        self.assertFalse(self.passes("(1)", {1000: 10, 1000000: 10000}))

    def test_a_benchmark_without_a_declared_complexity_is_not_judged(self):
        undeclared = report("N", {1: 1, 1000: 10**9})
        undeclared["benchmarks"].pop()
        self.assertEqual(list(growth.judge(undeclared)), [])


if __name__ == "__main__":
    unittest.main()
