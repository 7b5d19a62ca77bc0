#!/usr/bin/env python3
"""Makes a root folder of a Debian system that has just the packages named and what they need.

    fresh_root.py ROOT PACKAGE...

The packages are copied as they are installed here, so nothing is fetched; their state comes along, so dpkg works in there.
"""

import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

STATUS = Path("/var/lib/dpkg/status")
INFO = Path("/var/lib/dpkg/info")


def installed_packages():
    """The paragraphs of the packages that are installed, and which of them provides a name."""
    paragraphs, providers = {}, {}
    for paragraph in STATUS.read_text(encoding="utf-8").split("\n\n"):
        fields = dict(re.findall(r"^([\w-]+): (.*)$", paragraph, re.MULTILINE))
        if not fields.get("Status", "").endswith(" installed"):
            continue
        name = fields["Package"]
        paragraphs[name] = (paragraph.strip("\n"), fields)
        for provided in [name] + names_in(fields.get("Provides", "")):
            providers.setdefault(provided, name)
    return paragraphs, providers


def names_in(relations):
    return [relation.split()[0].split(":")[0] for relation in re.split(r"[,|]", relations) if relation.strip()]


def needed(names, paragraphs, providers):
    found, open_names = set(), list(names)
    while open_names:
        name = open_names.pop()
        if name in found:
            continue
        found.add(name)
        fields = paragraphs[name][1]
        for group in (fields.get("Pre-Depends", "") + "," + fields.get("Depends", "")).split(","):
            choices = [providers[choice] for choice in names_in(group) if choice in providers]
            if choices and not found.intersection(choices):
                open_names.append(choices[0])
    return found


def info_files(name, architecture):
    for stem in (name, f"{name}:{architecture}"):
        for suffix in ("list", "md5sums", "triggers", "postinst", "preinst", "prerm", "postrm", "shlibs", "conffiles"):
            file = INFO / f"{stem}.{suffix}"
            if file.exists():
                yield file


def real_name(file):
    """Where a file lies that is listed as /lib/FILE: /lib is a link."""
    return os.path.join(os.path.realpath(os.path.dirname(file)), os.path.basename(file))


def copy(files, root):
    """What may be read here; the rest is the system's own, such as passwords."""
    found = {real_name(file) for file in files if os.path.islink(file) or os.access(file, os.R_OK)}
    # Folders are made: others, such as /tmp, may change while they are copied, which tar takes for a failure.
    folders = {name for name in found if os.path.isdir(name) and not os.path.islink(name)}
    for folder in sorted(folders):
        made = root + folder
        os.makedirs(made, exist_ok=True)
        shutil.copymode(folder, made)
    names = "\0".join(sorted(name.lstrip("/") for name in found - folders))
    packed = subprocess.Popen(["tar", "-C", "/", "--no-recursion", "--null", "-T", "-", "-c"], stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE)
    unpacked = subprocess.Popen(["tar", "-C", root, "-x"], stdin=packed.stdout)
    packed.stdout.close()
    packed.stdin.write(names.encode())
    packed.stdin.close()
    if packed.wait() != 0 or unpacked.wait() != 0:
        sys.exit("fresh_root.py: the packages cannot be copied")


def main():
    root, *wanted = sys.argv[1:]
    paragraphs, providers = installed_packages()
    missing = [name for name in wanted if name not in providers]
    if missing:
        sys.exit(f"fresh_root.py: not installed here: {' '.join(missing)}")
    essential = [name for name, (_, fields) in paragraphs.items() if fields.get("Essential") == "yes"]
    names = needed(essential + [providers[name] for name in wanted], paragraphs, providers)

    files = {"/bin", "/lib", "/lib64", "/sbin", "/etc/passwd", "/etc/group", "/var/lib/dpkg/info/format",
             "/var/lib/dpkg/triggers/ldconfig"}
    for name in names:
        for file in info_files(name, paragraphs[name][1]["Architecture"]):
            files.add(str(file))
            if file.suffix == ".list":
                files.update(line for line in file.read_text(encoding="utf-8").splitlines() if line not in ("", "/."))
    os.makedirs(root, exist_ok=True)
    copy(files, root)

    dpkg = Path(root, "var/lib/dpkg")
    (dpkg / "status").write_text("\n\n".join(sorted(paragraphs[name][0] for name in names)) + "\n\n", encoding="utf-8")
    (dpkg / "updates").mkdir(exist_ok=True)
    for file in ("available", "triggers/Lock", "triggers/Unincorp"):
        (dpkg / file).touch()


if __name__ == "__main__":
    main()
