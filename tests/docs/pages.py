#!/usr/bin/env python3
"""What the Markdown pages show is taken out of them, built, run and compared.

  pages.py programs FOLDER PAGE...    writes the C++ programs of the pages into FOLDER; prints a line for each with the
                                      libraries it is linked with, then a line for each page with sessions and the programs it shows
  pages.py run PAGE --programs FOLDER --samples FOLDER --axm FILE
                                      runs the sessions of a page in a folder of its own and compares what they print
  pages.py links FOLDER               checks the links of all pages below FOLDER

A fenced block whose first line is a comment with the name of a file, as "// titles.cpp: writes titles", is that file: it
stands in the folder in which the page's sessions run. C++ is only shown as such whole programs, and they are built before;
one that examples/ has is the one that stands there.
A block "console" is a session of a shell: lines that begin with "$ " are run, one after the other in one bash, what follows
is what they print. A line "..." stands for any lines. What fails without a word must be asked for its exit code (echo $?).
Commands in blocks "sh" are not run: they are for what changes the machine or the repository. Those of axm always are.
"""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

FILE_COMMENT = re.compile(r'(?://|#|<!--) ([\w.-]+\.\w+)(?:[: ]|$)')

# By the beginning of a header's name.
LIBRARIES = {'axs': 'axs', 'axm': 'axm', 'pugixml': 'pugixml', 'libxml/': 'libxml2', 'xercesc/': 'xerces',
             'tinyxml2': 'tinyxml2', 'QtXml': 'qt', 'QDom': 'qt'}


class Block:
    """A fenced block: its language, its lines, and the number of its first line."""

    def __init__(self, language, lines, line):
        self.language, self.lines, self.line = language, lines, line

    @property
    def text(self):
        return ''.join(line + '\n' for line in self.lines)

    @property
    def file_name(self):
        named = FILE_COMMENT.match(self.lines[0]) if self.lines else None
        return named.group(1) if named else None


def blocks_of(page):
    blocks, fence, language, lines, begin = [], None, '', [], 0
    for number, line in enumerate(page.read_text(encoding='utf-8').splitlines(), 1):
        mark = re.match(r'(`{3,})(.*)$', line)
        if fence is None and mark:
            fence, language, lines, begin = mark.group(1), mark.group(2).strip(), [], number + 1
        elif fence is not None and line == fence:
            blocks.append(Block(language, lines, begin))
            fence = None
        elif fence is not None:
            lines.append(line)
    if fence is not None:
        sys.exit(f'{page}:{begin}: the block does not end')
    return blocks


def programs_of(page):
    """The C++ programs of a page by their names."""
    found = {}
    for block in blocks_of(page):
        if block.language != 'cpp':
            continue
        if not block.file_name or 'int main(' not in block.text:
            sys.exit(f'{page}:{block.line}: C++ is shown as a whole program whose first line names its file')
        found[block.file_name.removesuffix('.cpp')] = block
    return found


def libraries_of(text):
    headers = re.findall(r'^#include <([^>]+)>', text, re.MULTILINE)
    return sorted({library for header in headers for start, library in LIBRARIES.items() if header.startswith(start)})


def write_programs(folder, pages):
    folder.mkdir(parents=True, exist_ok=True)
    written = {}
    for page in pages:
        for name, block in programs_of(page).items():
            check_example(page, name, block)
            if written.setdefault(name, block.text) != block.text:
                sys.exit(f'{page}:{block.line}: another program is named {name}')
    for name, text in written.items():
        source = folder / f'{name}.cpp'
        # What stays the same is not compiled again.
        if not source.exists() or source.read_text(encoding='utf-8') != text:
            source.write_text(text, encoding='utf-8')
        print('program', name, *libraries_of(text))
    for page in pages:
        if steps_of(page):
            print('page', page, *programs_of(page))


def example_of(name):
    return pathlib.Path(__file__).parents[2] / 'examples' / f'{name}.cpp'


def check_example(page, name, block):
    example = example_of(name)
    if example.exists() and example.read_text(encoding='utf-8') != block.text:
        sys.exit(f'{page}:{block.line}: this is not {example.name} as it stands in examples/')


class Step:
    """A command of a session, and the lines that it prints."""

    def __init__(self, command, line):
        self.command, self.line, self.expected = command, line, []


def steps_of(page):
    steps = []
    for block in blocks_of(page):
        if block.language == 'console':
            steps += session_steps(page, block)
        elif re.search(r'^(?:\$ )?axm [a-z]+ ', block.text, re.MULTILINE):
            sys.exit(f'{page}:{block.line}: commands of axm are shown in a session, which is run')
    return steps


def session_steps(page, block):
    steps = []
    continued = False
    for number, line in enumerate(block.lines, block.line):
        if continued:
            steps[-1].command += '\n' + line.removeprefix('> ')
        elif line.startswith('$ '):
            steps.append(Step(line[2:], number))
        elif steps:
            steps[-1].expected.append(line)
        else:
            sys.exit(f'{page}:{number}: a session begins with a command')
        continued = (continued or line.startswith('$ ')) and is_open(steps[-1].command)
    return steps


def is_open(command):
    """Whether a shell would wait for more lines."""
    here = re.search(r"<<'?(\w+)'?", command)
    if here:
        return f'\n{here.group(1)}' not in command
    return command.endswith('\\') or command.count("'") % 2 == 1


def run_steps(steps, folder, environment):
    """Runs the commands in one shell; returns the output and the exit code of each."""
    mark = '\x01end of a step\x01'
    script = ''.join(f"{step.command}\nstatus=$?; printf '%s%d\\n' '{mark}' $status; (exit $status)\n" for step in steps)
    done = subprocess.run(['bash', '--norc', '-s'], input=script.encode(), cwd=folder, env=environment,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=300)
    parts = done.stdout.decode('utf-8', 'replace').split(mark)
    outputs, text = [], parts[0]
    for part in parts[1:]:
        status, _, rest = part.partition('\n')
        outputs.append((text, int(status)))
        text = rest
    return outputs


def matches(expected, got):
    """Whether the lines are those expected, of which "..." stands for any number of lines."""
    if '...' not in expected:
        return expected == got
    at = expected.index('...')
    if expected[:at] != got[:at]:
        return False
    rest = expected[at + 1:]
    return any(matches(rest, got[begin:]) for begin in range(at, len(got) + 1))


def environment_of(arguments):
    environment = dict(os.environ, LC_ALL='C.UTF-8', NO_COLOR='1', TZ='UTC')
    commands = arguments.axm.resolve().parent
    if getattr(arguments, 'installed', None):
        commands = arguments.installed.resolve() / 'bin'
        library = arguments.installed.resolve() / arguments.library_folder
        environment['PKG_CONFIG_PATH'] = str(library / 'pkgconfig')
        environment['CMAKE_PREFIX_PATH'] = str(arguments.installed.resolve())
        environment['LD_LIBRARY_PATH'] = str(library)
    environment['PATH'] = os.pathsep.join([str(commands), environment['PATH']])
    return environment


def furnish(folder, arguments):
    """What a page's sessions find in their folder: samples, the files that it shows, and its programs."""
    for sample in arguments.samples.iterdir():
        if sample.suffix in ('.xml', '.xsd'):
            shutil.copy(sample, folder)
    for block in blocks_of(arguments.page):
        if block.file_name and block.language != 'console':
            (folder / block.file_name).write_text(block.text, encoding='utf-8')
    for name in programs_of(arguments.page):
        built = arguments.axm.parent if example_of(name).exists() else arguments.programs
        os.symlink(built.resolve() / name, folder / name)
    if getattr(arguments, 'engine', None):
        os.symlink(arguments.engine.resolve(), folder / 'libmy_engine.so')


def run_page(arguments):
    steps = steps_of(arguments.page)
    wrong = 0
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        furnish(folder, arguments)
        outputs = run_steps(steps, folder, environment_of(arguments))
    for number, step in enumerate(steps):
        if number >= len(outputs):
            print(f'{arguments.page}:{step.line}: the shell ended before {step.command}')
            return 1
        text, status = outputs[number]
        got = text.replace('\r\n', '\n').rstrip('\n').split('\n') if text.strip('\n') else []
        expected = strip_end(step.expected)
        is_asked = number + 1 < len(steps) and steps[number + 1].command == 'echo $?'
        if not matches(expected, got):
            wrong += 1
            print(f'{arguments.page}:{step.line}: $ {step.command}\nexpected:', *expected, 'printed:', *got, sep='\n')
        elif status != 0 and not got and not is_asked:
            wrong += 1
            print(f'{arguments.page}:{step.line}: $ {step.command}\nfailed without a word, exit code {status}')
    return 1 if wrong else 0


def strip_end(lines):
    while lines and not lines[-1]:
        lines = lines[:-1]
    return lines


def anchor_of(heading):
    """The anchor of a heading, as sites and GitHub make it."""
    plain = re.sub(r'\[([^\]]*)\]\([^)]*\)', r'\1', heading).replace('`', '').strip().lower()
    return re.sub(r'[^\w\- ]', '', plain).replace(' ', '-')


def headings_of(page):
    text = re.sub(r'^```.*?^```$', '', page.read_text(encoding='utf-8'), flags=re.MULTILINE | re.DOTALL)
    return {anchor_of(heading) for heading in re.findall(r'^#+ (.+)$', text, re.MULTILINE)}


def links_of(page):
    text = re.sub(r'^```.*?^```$', lambda block: '\n' * block.group().count('\n'), page.read_text(encoding='utf-8'),
                  flags=re.MULTILINE | re.DOTALL)
    for number, line in enumerate(text.splitlines(), 1):
        for link in re.findall(r'\]\(([^)\s]+)\)', re.sub(r'`[^`]*`', '``', line)):
            yield number, link


def check_links(folder):
    pages = [page for page in folder.rglob('*.md') if 'build' not in page.relative_to(folder).parts]
    wrong = 0
    for page in pages:
        for number, link in links_of(page):
            if re.match(r'[a-z]+:', link):
                continue
            path, _, anchor = link.partition('#')
            target = (page.parent / path).resolve() if path else page
            if not target.exists():
                wrong += 1
                print(f'{page}:{number}: {link} leads nowhere')
            elif anchor and target.suffix == '.md' and target.exists() and anchor not in headings_of(target):
                wrong += 1
                print(f'{page}:{number}: there is no heading #{anchor} in {target.name}')
    print(f'{len(pages)} pages')
    return 1 if wrong or not pages else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    verbs = parser.add_subparsers(dest='verb', required=True)
    programs = verbs.add_parser('programs')
    programs.add_argument('folder', type=pathlib.Path)
    programs.add_argument('pages', type=pathlib.Path, nargs='+')
    run = verbs.add_parser('run')
    run.add_argument('page', type=pathlib.Path)
    run.add_argument('--programs', type=pathlib.Path, required=True)
    run.add_argument('--samples', type=pathlib.Path, required=True)
    run.add_argument('--axm', type=pathlib.Path, required=True)
    run.add_argument('--engine', type=pathlib.Path, help='a library with an engine, for those who write one')
    run.add_argument('--installed', type=pathlib.Path)
    run.add_argument('--library-folder', default='lib')
    links = verbs.add_parser('links')
    links.add_argument('folder', type=pathlib.Path)
    arguments = parser.parse_args()
    if arguments.verb == 'programs':
        return write_programs(arguments.folder, arguments.pages)
    if arguments.verb == 'run':
        return run_page(arguments)
    return check_links(arguments.folder)


if __name__ == '__main__':
    sys.exit(main())
