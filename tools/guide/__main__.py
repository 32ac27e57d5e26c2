"""Makes the user's guide: python3 tools/guide [--source DIR] [--aide DIR] [--chm DIR].

Turns the Markdown pages of docs/guide into plain HTML, and writes what chmcmd needs to make them into help files.
Needs python3-markdown.
"""

import argparse
import sys
from pathlib import Path

try:
    import markdown  # noqa: F401
except ModuleNotFoundError:
    sys.exit("markdown is missing: run this with the python3 that has it (Debian: /usr/bin/python3, python3-markdown)")

from chm import ecrit_projet
from pages import Faute, LANGUES, ecrit_guide, lit_guide
from verifie import verifie

RACINE = Path(__file__).resolve().parents[2]


def main():
    """Reads both languages, checks them, and writes them."""
    lecteur = argparse.ArgumentParser(prog="guide", description=__doc__.splitlines()[0])
    lecteur.add_argument("--source", type=Path, default=RACINE / "docs" / "guide", help="the Markdown pages")
    lecteur.add_argument("--aide", type=Path, default=RACINE / "build" / "bin" / "aide", help="where the HTML pages go")
    lecteur.add_argument("--chm", type=Path, help="where the projects for chmcmd go")
    choix = lecteur.parse_args()
    try:
        guides = {langue: lit_guide(choix.source, langue) for langue in LANGUES}
        verifie(choix.source, guides)
    except Faute as faute:
        sys.exit(f"guide: {faute}")
    for langue, pages in guides.items():
        ecrit_guide(pages, choix.source / langue, choix.aide / langue, "utf-8")
        if choix.chm:
            ecrit_projet(pages, choix.source / langue, choix.chm / langue)


if __name__ == "__main__":
    main()
