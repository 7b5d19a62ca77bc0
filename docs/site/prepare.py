#!/usr/bin/env python3
"""Makes the pages of the site from those of docs/: prepare.py AXM OUTPUT

Beside the pages, OUTPUT gets one for each verb of the command, from its manual page, and mkdocs.yml with them. Links that lead
out of docs/ go to the reference, where that has been made in OUTPUT/pages/reference, or to a copy of the file.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys

DOCS = pathlib.Path(__file__).resolve().parents[1]
TOP = DOCS.parent
LINK = re.compile(r'\[([^\]]*)\]\(([^)\s#]+)(#[^)\s]*)?\)')


def reference_page(header):
    """The page of the class that a header declares or, of other headers, that of the file, by the names of Doxygen."""
    declared = re.search(r'^(class|struct) (?:\w+ )?' + header.stem + r'\b', header.read_text(encoding='utf-8'), re.M)
    return f'{declared.group(1)}{header.stem}.html' if declared else f'{header.stem}_8h.html'


def new_target(target, output):
    """Where a link to a file outside of docs/ leads; None for a folder, which a site does not have."""
    if target.is_dir():
        return None
    if target.suffix == '.h':
        made = output / 'reference' / reference_page(target)
        if made.exists():
            return made
    copy = output / 'files' / target.relative_to(TOP)
    copy.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(target, copy)
    return copy


def with_links(text, page, output):
    def replaced(link):
        shown, path, anchor = link.group(1), link.group(2), link.group(3) or ''
        target = (page.parent / path).resolve()
        if ':' in path or target.is_relative_to(DOCS):
            return link.group()
        made = new_target(target, output)
        place = (output / page.relative_to(DOCS)).parent
        return f'[{shown}]({os.path.relpath(made, place)}{anchor})' if made else shown

    # Links in blocks of code are none.
    parts = re.split(r'(^```.*?^```$)', text, flags=re.M | re.S)
    return ''.join(part if part.startswith('```') else LINK.sub(replaced, part) for part in parts)


def verbs_of(axm):
    help_text = subprocess.run([axm, '--help'], check=True, capture_output=True, text=True).stdout
    return re.findall(r'^  ([a-z]+) {2,}', help_text.partition('\nVerbs:\n')[2], re.M)


def manual_page(axm, verb):
    manual = subprocess.run([axm, '--man', verb], check=True, capture_output=True).stdout
    html = subprocess.run(['mandoc', '-T', 'html', '-O', 'fragment'], input=manual, check=True,
                          capture_output=True).stdout.decode('utf-8')
    # What stands before the synopsis is the title of the page; headings become those of it.
    body = html[html.index('<section class="Sh">', html.index('id="NAME"')):html.index('<table class="foot">')]
    body = re.sub(r'<h1 class="Sh" id="(\w+)"><a.*?>(.*?)</a></h1>', lambda heading: '<h2 id="{}">{}</h2>'.format(
        heading.group(1).lower(), heading.group(2).capitalize()), body, flags=re.S)
    return f'# axm {verb}\n\n<div class="manual">\n{body.rsplit("</div>", 1)[0]}\n</div>\n'


def main():
    axm, output = sys.argv[1], pathlib.Path(sys.argv[2]).resolve()
    pages = output / 'pages'
    for page in DOCS.rglob('*.md'):
        made = pages / page.relative_to(DOCS)
        made.parent.mkdir(parents=True, exist_ok=True)
        made.write_text(with_links(page.read_text(encoding='utf-8'), page, pages), encoding='utf-8')
    shutil.copy(DOCS / 'site' / 'site.css', pages)

    verbs = verbs_of(axm)
    for verb in verbs:
        (pages / 'command' / f'axm-{verb}.md').write_text(manual_page(axm, verb), encoding='utf-8')
    entries = ''.join(f'          - {verb}: command/axm-{verb}.md\n' for verb in verbs)
    settings = (DOCS / 'site' / 'mkdocs.yml').read_text(encoding='utf-8')
    (output / 'mkdocs.yml').write_text(settings.replace('# filled in by prepare.py\n', '\n' + entries), encoding='utf-8')


if __name__ == '__main__':
    main()
