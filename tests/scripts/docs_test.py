"""What the documents name is there: each link and its anchor, each file, and each word of the sources in `code`; and each
picture of docs/ is in one of them.

Usage: docs_test.py [REPOSITORY]"""

import os
import re
import sys
from fnmatch import fnmatch
from pathlib import Path

LEFT_OUT = {".git", "build", "demo-pictures"}
SOURCES = {"", ".cpp", ".glsl", ".h", ".json", ".py", ".score", ".txt"}
MADE = ("build/", "game/", "demo-pictures/", "/", "~")  # files that a build or the game makes

FENCE = re.compile(r"^ *```.*?^ *```", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"\]\(([^)#\s]*)(?:#([^)\s]*))?\)")
CODE = re.compile(r"`([^`\n]+)`")
HEADING = re.compile(r"^#+ +(.*)$", re.MULTILINE)
FILE = re.compile(r"[\w.*-]+(/[\w.*-]+)+/?|[\w*-]+\.(cpp|h|md|png|py|txt)")
PROGRAM = re.compile(r"(\w+)_tests")
TEST = re.compile(r"\w+_test")
WORD = re.compile(r"[A-Za-z_]\w*(::\w+)*")


class Repository:
    def __init__(self, root):
        self.root = root
        self.names = []
        for folder, folders, files in os.walk(root):
            folders[:] = set(folders) - LEFT_OUT
            self.names += [str((Path(folder) / name).relative_to(root)) for name in (*folders, *files)]
        self.documents = {name: (root / name).read_text() for name in sorted(self.names) if name.endswith(".md")}
        sources = (root / name for name in self.names if Path(name).suffix in SOURCES and (root / name).is_file())
        self.words = set(re.findall(r"\w+", "\n".join(path.read_text(errors="replace") for path in sources)))

    def has(self, name):
        """Whether a file or folder is so named, from the root or from any folder on."""
        name = name.removeprefix("./").rstrip("/")
        return any(fnmatch(path, pattern) for path in self.names for pattern in (name, "*/" + name))

    def knows(self, code):
        """Whether what stands in `code` is there; true for what names neither a file nor a word of the sources."""
        if code.startswith(MADE) or "NAME" in code:
            return True
        if program := PROGRAM.fullmatch(code):
            return self.has("tests/" + program[1])
        if TEST.fullmatch(code):
            return self.has(code + ".*")
        if FILE.fullmatch(code):
            return self.has(code)
        return not WORD.fullmatch(code) or self.words.issuperset(code.split("::"))


def anchors(text):
    """Of the headings, as those who show such documents make them."""
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in HEADING.findall(text)}


def broken_links(repository, document, text):
    for target, anchor in LINK.findall(text):
        path = (repository.root / document).parent / target if target else repository.root / document
        if "://" in target:
            continue
        if not path.exists():
            yield f"there is no {target}"
        elif anchor and anchor not in anchors(path.read_text()):
            yield f"there is no heading {target}#{anchor}"


def unknown_names(repository, _document, text):
    for code in CODE.findall(FENCE.sub("", text)):
        words = code.split()
        named = words if len(words) == 1 else filter(FILE.fullmatch, words)
        yield from (f"nothing is named {name}" for name in named if not repository.knows(name))


def unused_pictures(repository):
    pictures = (name.removeprefix("docs/") for name in repository.names if fnmatch(name, "docs/*.png"))
    return (f"no document shows docs/{picture}" for picture in pictures
            if not any(picture in text for text in repository.documents.values()))


def main(arguments):
    repository = Repository(Path(arguments[0] if arguments else Path(__file__).parents[2]).resolve())
    faults = [f"{document}: {fault}" for document, text in repository.documents.items()
              for check in (broken_links, unknown_names) for fault in check(repository, document, text)]
    faults += unused_pictures(repository)
    print(*faults, f"{len(repository.documents)} documents, {len(faults)} faults", sep="\n")
    return 1 if faults or not repository.documents else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
