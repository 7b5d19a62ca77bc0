#!/usr/bin/env python3
"""What pages.py lets pass and what it does not: pages_test.py"""

import contextlib
import io
import pathlib
import tempfile
import types
import unittest

import pages


class PagesTest(unittest.TestCase):
    def setUp(self):
        self.scratch = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.scratch.name)
        self.addCleanup(self.scratch.cleanup)

    def page(self, text, name='page.md'):
        page = self.folder / name
        page.write_text(text, encoding='utf-8')
        return page

    def run_page(self, text):
        """The exit code of a run and what it says."""
        (self.folder / 'samples').mkdir(exist_ok=True)
        (self.folder / 'samples' / 'a.xml').write_text('<a/>\n', encoding='utf-8')
        arguments = types.SimpleNamespace(page=self.page(text), programs=self.folder, samples=self.folder / 'samples',
                                          axm=self.folder / 'axm')
        said = io.StringIO()
        with contextlib.redirect_stdout(said):
            return pages.run_page(arguments), said.getvalue()

    def check_links(self, text):
        self.page(text)
        with contextlib.redirect_stdout(io.StringIO()):
            return pages.check_links(self.folder)

    def test_a_session_that_prints_what_it_shows_passes(self):
        self.assertEqual((0, ''), self.run_page('```console\n$ cat a.xml\n<a/>\n$ x=1\n$ echo $x\n1\n```\n'))

    def test_a_session_that_prints_anything_else_fails_with_its_place(self):
        code, said = self.run_page('text\n\n```console\n$ cat a.xml\n<b/>\n```\n')
        self.assertEqual(1, code)
        self.assertIn('page.md:4: $ cat a.xml', said)

    def test_dots_stand_for_any_lines(self):
        self.assertEqual(0, self.run_page("```console\n$ printf '1\\n2\\n3\\n'\n1\n...\n3\n```\n")[0])
        self.assertEqual(1, self.run_page("```console\n$ printf '1\\n2\\n3\\n'\n...\n2\n```\n")[0])

    def test_what_fails_without_a_word_is_asked_for_its_exit_code(self):
        self.assertEqual(1, self.run_page('```console\n$ false\n```\n')[0])
        self.assertEqual(0, self.run_page('```console\n$ false\n$ echo $?\n1\n```\n')[0])

    def test_a_session_that_ends_its_shell_fails(self):
        self.assertEqual(1, self.run_page('```console\n$ exit\n$ echo 1\n1\n```\n')[0])

    def test_a_block_whose_first_line_names_a_file_is_that_file(self):
        self.assertEqual(0, self.run_page('```xml\n<!-- b.xml -->\n<b/>\n```\n```console\n$ tail -n 1 b.xml\n<b/>\n```\n')[0])

    def test_here_documents_and_quotes_go_on_over_lines(self):
        self.assertEqual(0, self.run_page("```console\n$ cat <<'END'\n> $x\n> END\n$x\n$ echo 'a\n> b'\na\nb\n```\n")[0])

    def test_cpp_that_is_no_whole_program_is_refused(self):
        for text in ('int i;\n', 'int main() {}\n', '// a.cpp\nint i;\n'):
            with self.assertRaises(SystemExit):
                pages.programs_of(self.page(f'```cpp\n{text}```\n'))
        self.assertIn('a', pages.programs_of(self.page('```cpp\n// a.cpp\nint main() {}\n```\n')))

    def test_a_command_of_axm_that_is_not_run_is_refused(self):
        for language in ('sh', '', 'text'):
            with self.assertRaises(SystemExit):
                pages.steps_of(self.page(f'```{language}\naxm select a.xml //b\n```\n'))

    def test_two_programs_of_one_name_are_refused(self):
        one = self.page('```cpp\n// a.cpp\nint main() {}\n```\n', 'one.md')
        two = self.page('```cpp\n// a.cpp\nint main() { return 1; }\n```\n', 'two.md')
        with self.assertRaises(SystemExit), contextlib.redirect_stdout(io.StringIO()):
            pages.write_programs(self.folder / 'programs', [one, two])

    def test_a_program_that_stays_the_same_is_not_written_again(self):
        one = self.page('```cpp\n// a.cpp\nint main() {}\n```\n')
        with contextlib.redirect_stdout(io.StringIO()):
            pages.write_programs(self.folder / 'programs', [one])
            written = (self.folder / 'programs' / 'a.cpp').stat().st_mtime_ns
            pages.write_programs(self.folder / 'programs', [one])
        self.assertEqual(written, (self.folder / 'programs' / 'a.cpp').stat().st_mtime_ns)

    def test_links_lead_to_files_and_headings(self):
        self.assertEqual(0, self.check_links('# A heading\n[a](page.md) [b](#a-heading) [c](page.md#a-heading) `[d](e)`\n'))
        for wrong in ('[a](none.md)', '[a](#none)', '[a](page.md#none)'):
            self.assertEqual(1, self.check_links(f'# A heading\n{wrong}\n'))


if __name__ == '__main__':
    unittest.main()
