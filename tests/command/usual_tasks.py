#!/usr/bin/env python3
"""Runs the commands of docs/command/usual-tasks.md: those of axm write what stands there, the others give the same answer.

  usual_tasks.py PAGE --axm FILE --samples FOLDER [--times N]

Where formats differ, answers are compared in the form that is named here for the task. --times also measures each command,
the best of N runs, and prints a table.
"""

import argparse
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / 'docs'))
import pages  # noqa: E402

# Fewer tasks mean that the page is not understood.
MIN_TASKS = 10


def as_lines(output, status):
    """The lines; a line that is missing at the end does not count, nor how lines end."""
    return succeeded(output.replace('\r\n', '\n').rstrip('\n').split('\n'), status)


def as_values(output, status):
    """Of lines as  id="b1"  the values."""
    return [re.sub(r'^\s*\w+="(.*)"$', r'\1', line) for line in as_lines(output, status)]


def as_document(output, status):
    """The canonical form without white space around texts."""
    return succeeded(xml.etree.ElementTree.canonicalize(output, strip_text=True), status)


def as_layout(output, status):
    """The lines without the XML declaration."""
    return [line for line in as_lines(output, status) if not line.startswith('<?xml')]


def as_paths(output, status):
    """The paths of elements."""
    return sorted(re.findall(r'(?<!\S)catalog(?:/[\w/]+)?(?!\S)', succeeded(output, status)))


def as_json(output, status):
    return json.loads(succeeded(output, status))


def as_faulty_line(output, status):
    """That it failed, and the first line that is named."""
    if status == 0:
        raise ValueError('it did not fail')
    return re.search(r'(?:xml:|line )(\d+)', output).group(1)


def succeeded(answer, status):
    if status != 0:
        raise ValueError(f'it failed with exit code {status}')
    return answer


COMPARED = {
    'Attributes, by a condition': as_values,
    'Elements as XML': as_document,
    'Is it well-formed?': as_faulty_line,
    'Is it valid by a schema?': as_faulty_line,
    'Lay out anew': as_layout,
    'Change a value': as_document,
    'Delete elements': as_document,
    'Which elements are there?': as_paths,
    'JSON': as_json,
}


def tasks_of(page):
    """The headings with the commands of each tool, axm first, and what axm writes."""
    for section in re.split(r'^## ', page.read_text(encoding='utf-8'), flags=re.MULTILINE)[1:]:
        heading = section.partition('\n')[0]
        commands = re.findall(r'^\| (\S+) \| `(.*)` \|$', section, re.MULTILINE)
        answer = re.search(r'^```text\n(.*?)^```$', section, re.MULTILINE | re.DOTALL)
        if not commands or commands[0][0] != 'axm' or not answer:
            sys.exit(f'{page}: the task "{heading}" needs commands, the first one of axm, and what that writes')
        yield heading, commands, answer.group(1)


def run(command, folder, environment):
    done = subprocess.run(['bash', '-c', command], cwd=folder, env=environment, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, timeout=60)
    return done.stdout.decode('utf-8').replace('\r\n', '\n'), done.returncode


def best_time(command, folder, environment, runs):
    times = []
    for _ in range(runs):
        begin = time.perf_counter()
        run('exec ' + command, folder, environment)
        times.append(time.perf_counter() - begin)
    return min(times) * 1000


def compare(heading, commands, shown, run_command):
    """What is wrong with a task, in lines."""
    form = COMPARED.get(heading, as_lines)
    wrong, answers = [], []
    for tool, command in commands:
        output, status = run_command(command)
        if not answers and output.rstrip('\n') != shown.rstrip('\n'):
            wrong.append(f'{heading}: axm writes\n{output}')
        try:
            answers.append(form(output, status))
        except (ValueError, AttributeError, xml.etree.ElementTree.ParseError) as error:
            wrong.append(f'{heading}: {tool}: {error}: {output}')
            return wrong
        if answers[-1] != answers[0]:
            wrong.append(f'{heading}: {tool} gives\n{answers[-1]}\nand not\n{answers[0]}')
    return wrong


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('page', type=pathlib.Path)
    parser.add_argument('--axm', type=pathlib.Path, required=True)
    parser.add_argument('--samples', type=pathlib.Path, required=True)
    parser.add_argument('--times', type=int, default=0)
    arguments = parser.parse_args()
    environment = pages.environment_of(arguments)

    wrong, count = [], 0
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        pages.furnish(folder, arguments)
        pages.run_steps(pages.steps_of(arguments.page), folder, environment)
        for heading, commands, shown in tasks_of(arguments.page):
            count += 1
            wrong += compare(heading, commands, shown, lambda command: run(command, folder, environment))
            if arguments.times:
                times = [f'{tool} {best_time(command, folder, environment, arguments.times):.1f} ms'
                         for tool, command in commands]
                print(f'{heading}: ' + ', '.join(times))
    print(*wrong, sep='\n')
    print(f'{count} tasks')
    return 1 if wrong or count < MIN_TASKS else 0


if __name__ == '__main__':
    sys.exit(main())
