"""Writes Debian's change log of the package from CHANGELOG.md: one entry a release, one item a bullet."""

import datetime
import email.utils
import re
import sys
import textwrap

LARGEUR = 79


def versions(texte):
    """Each release with its date and bullets; what isn't released yet is left out."""
    for morceau in re.split(r"^## ", texte, flags=re.M)[1:]:
        titre = re.match(r"\[([0-9.]+)\] - (\d{4}-\d{2}-\d{2})$", morceau.split("\n", 1)[0])
        if titre:
            articles = re.findall(r"^- (.+(?:\n  .+)*)", morceau, flags=re.M)
            yield titre[1], titre[2], [" ".join(article.split()) for article in articles]


def entree(paquet, version, date, articles, responsable):
    lignes = [f"{paquet} ({version}) stable; urgency=medium", ""]
    for article in articles or ["New release."]:
        lignes += textwrap.wrap(article, LARGEUR, initial_indent="  * ", subsequent_indent="    ")
    midi = datetime.datetime.fromisoformat(date + "T12:00:00+00:00")
    return "\n".join(lignes) + f"\n\n -- {responsable}  {email.utils.format_datetime(midi)}\n"


def main():
    source, paquet, responsable, sortie = sys.argv[1:]
    with open(source, encoding="utf-8") as fichier:
        texte = fichier.read()
    entrees = [entree(paquet, *version, responsable) for version in versions(texte)]
    if not entrees:
        sys.exit(f"{source}: no release")
    with open(sortie, "w", encoding="utf-8") as fichier:
        fichier.write("\n".join(entrees))


if __name__ == "__main__":
    main()
