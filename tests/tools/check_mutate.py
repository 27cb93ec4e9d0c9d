#!/usr/bin/env python3
"""Which code changes tools/mutate.py finds, and that it leaves nothing behind."""
import sys
import tempfile
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "tools"))
import code_changes  # noqa: E402
import mutate  # noqa: E402


def changes(text, kind):
    """Old text and all new texts of each place of the kind."""
    return [(text[choices[0].start:choices[0].end], *(choice.new for choice in choices))
            for found, choices in code_changes.changes_of(text) if found == kind]


def running(state):
    try:
        return state.read_text().rpartition(")")[2].split()[0] != "Z"
    except OSError:
        return False


class Finding(unittest.TestCase):
    def test_comparisons_move_their_edge_or_turn_round(self):
        self.assertEqual(changes("bool f() { return a < 1 && b == c; }", "comparison"),
                         [("<", "<=", ">="), ("&&", "||"), ("==", "!=")])

    def test_angles_of_templates_and_streams_are_no_comparisons(self):
        self.assertEqual(changes("std::vector<std::array<int, 4>> a; template <typename T> void f(T&& t) { s << t; }", "comparison"), [])

    def test_numbers_texts_and_truth_values_are_constants(self):
        self.assertEqual(changes("void f() { a = 0; b = 16U; c = 0x1F; d = 0.5F; e = \"x\"; g = ' '; h = true; }", "constant"),
                         [("0", "1"), ("16U", "17U", "15U"), ("0x1F", "0x20"), ("0.5F", "1.5f", "0.45f"), ("\"x\"", "\"x~\""),
                          ("' '", "'~'"), ("true", "false")])

    def test_sizes_of_types_are_no_constants(self):
        self.assertEqual(changes("void f() { std::array<int, 4> a; char b[32]; }", "constant"), [])

    def test_comments_includes_and_asserts_stay(self):
        text = ("#include \"a.h\"\n#define A (1 < 2)\n// a < 1\n/* b = 2;\n c == 3 */\n"
                "void f() { assert(a < 1 && !b); static_assert(sizeof(int) == 4, \"x\"); }")
        self.assertEqual(code_changes.changes_of(text), [])

    def test_what_looks_like_code_in_a_text_stays(self):
        text = "auto a = R\"x(if (a < 1) f(b, c); \")x\"; auto b = \"\\\"d < 2\";"
        self.assertEqual([kind for kind, _ in code_changes.changes_of(text)], ["constant", "constant"])

    def test_a_condition_turns_round(self):
        self.assertEqual(changes("void f() { if (!a) b(); while (c(d)) e(); if (int g = h(); g) i(); }", "negation"),
                         [("!", ""), ("!a", "!(!a)"), ("c(d)", "!(c(d))")])

    def test_statements_go_and_declarations_stay(self):
        text = ("namespace n { int count = f(1); }\nstruct S { S(); int a = 1; };\nvoid g() {\n"
                "int b = 2; const T c(3); T<int> d(4); std::string& e = h; using U = int;\n"
                "i(5); if (j) k = 6; else ++l; for (;;) { break; }\n"
                "m([&] { n::o(); }); list.reserve(7); if (p) return; throw q; return 8; }")
        self.assertEqual([old for old, _ in changes(text, "statement")],
                         ["i(5)", "k = 6", "++l", "break", "m([&] { n::o(); })", "n::o()", "return", "throw q"])

    def test_neighbouring_arguments_swap(self):
        self.assertEqual(changes("void f() { g(a, h(b, c), \"d\"); }", "argument"),
                         [("a, h(b, c)", "h(b, c), a"), ("h(b, c), \"d\"", "\"d\", h(b, c)"), ("b, c", "c, b")])

    def test_parameters_and_what_is_the_same_either_way_do_not_swap(self):
        self.assertEqual(changes("void f(int a, const T& b); void g(T a, U<int> b) { std::min(c, d); h(e, e); if (i(j)) k(l); }",
                                 "argument"), [])

    def test_operators_of_two_sides_are_arithmetic(self):
        self.assertEqual(changes("void f() { a = b + c * -d; ++e; *g = h; i = j + \"k\"; }", "arithmetic"),
                         [("+", "-"), ("*", "/"), ("++", "--")])


class Leaving(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = Path(folder.name) / "a.cpp"
        self.file.write_bytes("// \u00e9\r\na = 1;\n".encode())

    def test_the_file_comes_back_when_the_run_is_interrupted(self):
        before = self.file.read_bytes()
        with self.assertRaises(KeyboardInterrupt):
            with mutate.changed(self.file, {"start": 10, "end": 11, "new": "2"}):
                self.assertEqual(self.file.read_bytes(), "// \u00e9\r\na = 2;\n".encode())
                raise KeyboardInterrupt
        self.assertEqual(self.file.read_bytes(), before)

    def test_a_program_that_does_not_end_is_ended_with_its_children(self):
        told = self.file.with_name("child")
        status, _ = mutate.run(["bash", "-c", "set -m; sleep 600 & echo $! >%s; wait" % told], self.file.parent, seconds=3)
        self.assertIsNone(status)
        state = Path("/proc/%s/stat" % told.read_text().strip())
        for _ in range(200):  # it was told to end, which may take a moment
            if not running(state):
                break
            time.sleep(0.05)
        self.assertFalse(running(state))

    def test_the_same_seed_draws_the_same_changes(self):
        self.file.write_text("void f() { if (a < 1) g(b, 2); h = c + 3; }")
        draws = [list(mutate.chosen_changes(self.file.parent, [self.file], seed)) for seed in (5, 5, 6)]
        self.assertEqual(draws[0], draws[1])
        self.assertNotEqual(draws[0], draws[2])
        self.assertEqual(len({(c["start"], c["end"], c["kind"]) for c in draws[0]}), len(draws[0]))

    def test_a_survivor_is_found_where_its_line_went(self):
        self.file.write_text("void f() {\n    g(1);\n}\n")
        old = [c for c in mutate.chosen_changes(self.file.parent, [self.file], 1) if c["kind"] == "statement"]
        self.file.write_text("int b;\n\nvoid f() {\n    g(1);\n}\n")
        now = list(mutate.found_again(self.file.parent, old))
        self.assertEqual([(c["line"], c["old"]) for c in now], [(4, "g(1)")])


if __name__ == "__main__":
    unittest.main()
