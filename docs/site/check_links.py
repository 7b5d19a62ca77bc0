#!/usr/bin/env python3
"""Checks that the links between the pages of a site lead somewhere, anchors included: check_links.py FOLDER"""

import html.parser
import pathlib
import re
import sys
import urllib.parse


class Page(html.parser.HTMLParser):
    """The links of a page, and the names that links to it may have."""

    def __init__(self, file):
        super().__init__()
        self.links, self.anchors = [], set()
        self.feed(file.read_text(encoding='utf-8'))

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self.anchors.update(values[name] for name in ('id', 'name') if values.get(name))
        self.links += [values[name] for name in ('href', 'src') if values.get(name)]


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    pages = {file: Page(file) for file in folder.rglob('*.html')}
    count = wrong = 0
    for file, page in pages.items():
        for link in page.links:
            path, _, anchor = link.partition('#')
            # Of the page for what is not found, links begin at the root of wherever the site comes to stand.
            if re.match(r'[a-z]+:|//', link) or file.name == '404.html':
                continue
            count += 1
            target = (file.parent / urllib.parse.unquote(path.partition('?')[0])).resolve() if path else file
            target = target / 'index.html' if target.is_dir() else target
            # Doxygen's own headings do not always have the names that it links to.
            is_known = 'reference' in file.parts or target not in pages or not anchor or \
                urllib.parse.unquote(anchor) in pages[target].anchors
            if not target.exists() or not is_known:
                wrong += 1
                print(f'{file.relative_to(folder)}: {link} leads nowhere')
    print(f'{len(pages)} pages, {count} links')
    return 1 if wrong or not pages else 0


if __name__ == '__main__':
    sys.exit(main())
