"""Tests cmake/check_complexity.py over small functions: check_complexity_test.py CHECK_COMPLEXITY

The numbers are those of clang-tidy's readability-function-cognitive-complexity.
"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPT = sys.argv.pop(1)


class Complexity(unittest.TestCase):
    def check(self, text, *arguments):
        """The exit code and output of the check over a tree of one file."""
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder, "source/axmSample.cpp")
            file.parent.mkdir()
            file.write_text(text, encoding="utf-8")
            run = subprocess.run([sys.executable, SCRIPT, "--root", folder, *arguments], capture_output=True, text=True,
                                 check=False)
            return run.returncode, run.stdout

    def expect(self, number, body):
        _, output = self.check("int f(int a, int b)\n{\n" + body + "\n}\n", "--all", "0")
        expected = f"source/axmSample.cpp:1: f has a cognitive complexity of {number}\n" if number > 0 else ""
        self.assertEqual(output, expected, body)

    def test_what_runs_straight_on_costs_nothing(self):
        self.expect(0, "int const c = a + b;\n// if (a && b)\nchar const* s = \"if (a) while\";\nreturn c;")

    def test_each_branch_and_loop_costs_one_and_what_it_stands_in(self):
        self.expect(1, "if (a)\n  return b;\nreturn a;")
        self.expect(3, "while (a)\n  if (b)\n    return a;\nreturn b;")
        self.expect(6, "for (;;)\n{\n  while (a)\n  {\n    switch (b)\n    {\n    }\n  }\n}")
        self.expect(3, "do\n{\n  if (a)\n    ++b;\n} while (a < b);\nreturn a;")
        self.expect(1, "try\n{\n  ++a;\n}\ncatch (...)\n{\n}\nreturn a;")

    def test_each_else_costs_one(self):
        self.expect(3, "if (a)\n  return 1;\nelse if (b)\n  return 2;\nelse\n  return 3;")
        self.expect(4, "if (a)\n  return 1;\nelse\n  if (b)\n    return 2;\n  else\n    return 3;\nreturn a ? b : a;")
        self.expect(5, "if (a)\n{\n}\nelse\n{\n  while (b)\n    --b;\n}\nif (b)\n  return 1;\nreturn 2;")

    def test_each_run_of_equal_logical_operators_costs_one(self):
        self.expect(1, "return a && b && a;")
        self.expect(2, "return a && b || a;")
        self.expect(2, "if (a || b || a > b)\n  return 1;\nreturn 0;")
        self.expect(0, "auto&& c = a;\nreturn c;")

    def test_a_lambda_nests(self):
        self.expect(2, "auto const g = [&](int c) { if (c) ++a; };\ng(b);\nreturn a;")

    def test_a_function_above_the_limit_is_a_fault(self):
        deep = "while (a)\n" * 7 + "  ++b;\nreturn b;"
        code, output = self.check("int f(int a, int b)\n{\n" + deep + "\n}\n")
        self.assertEqual(code, 1)
        self.assertIn("source/axmSample.cpp:1: f has a cognitive complexity of 28\n", output)

    def test_constructors_operators_and_members_are_functions(self):
        code, output = self.check("Name::Name(int a) : b(a), c{a}\n{\n  if (a)\n    ++b;\n}\n"
                                  "bool Name::operator==(Name const& o) const noexcept\n{\n  return b == o.b && c == o.c;\n}\n"
                                  "auto Name::get() const -> int\n{\n  return b ? b : c;\n}\n", "--all", "0")
        self.assertEqual(code, 0)
        self.assertEqual(output.count("complexity of 1\n"), 3, output)

    def test_wrong_usage_is_told(self):
        self.assertEqual(self.check("", "--al")[0], 2)


if __name__ == "__main__":
    unittest.main()
