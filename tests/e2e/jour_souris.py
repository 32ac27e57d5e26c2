#!/usr/bin/python3
"""A whole day's work in the real window by mouse: the twilight planned, three stars opened and reduced, the fix in figures
kept, a run of readings made one sight of the Sun, the day's page with its weather.

Usage: dbus-run-session -- python3 jour_souris.py PROGRAMME EXEMPLES IMAGES   (needs DISPLAY)

Figures are typed, all else is pressed where it lies on the screen, as the desktop's bus for assistive tools tells it. A
hand takes a second and a half for a press and strikes two keys a second: it is done in under four minutes.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time

import pyatspi

from accessible import attend, dans, etat, fenetres, gere, montre, ouverte, programme, touche

PRESSE, FRAPPE = 1.5, 0.5  # seconds of a hand
PERMIS = 240.0
TEXTE, BOUTON, LISTE = pyatspi.ROLE_TEXT, pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_COMBO_BOX
ONGLET, LIGNE = pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_LIST_ITEM
BASE = ("Date", "Heure (UTC)", "Latitude", "Longitude", "Cap (°)", "Vitesse (nds)", "Œil (m)", "Coll. (')")
LECTURES = (("09:00:10", "43 12.5"), ("09:01:02", "43 20.4"), ("09:02:58", "43 39.9"), ("09:04:01", "43 50.0"),
            ("09:05:00", "44 00.3"))


class Main:
    """The hand: what it presses and strikes, and how long it would take for it."""

    def __init__(self, application, journal):
        self.application, self.journal = application, journal
        self.presses = self.frappes = 0

    def presse(self, noeud, fois=1):
        """Presses the middle of a control, once it lies still."""
        attend(f"{noeud.name} se montre", lambda: montre(noeud))
        lieu = None
        while True:
            e = noeud.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
            if lieu == (e.x, e.y):
                break
            lieu = (e.x, e.y)
            time.sleep(0.15)
        subprocess.run(["xdotool", "mousemove", str(e.x + e.width // 2), str(e.y + e.height // 2), "click", "--repeat",
                        str(fois), "--delay", "60", "1"], check=True)
        self.presses += 1
        time.sleep(0.25)

    def tape(self, texte):
        subprocess.run(["xdotool", "type", "--delay", "25", "--", texte], check=True)
        self.frappes += len(texte)
        time.sleep(0.1)

    def trouve(self, fenetre, nom, role, rang=0):
        """The control of that name; of several the one in that place."""
        def la():
            tous = [n for n in dans(fenetre) if n.name.strip() == nom and n.getRole() == role and montre(n)
                    and etat(n, pyatspi.STATE_ENABLED)]
            return tous[rang] if len(tous) > rang else None
        return attend(f"{nom} dans {fenetre.name}", la)

    def remplit(self, fenetre, nom, texte, rang=0):
        """Presses a field, types into it, and looks whether it has taken it."""
        champ = self.trouve(fenetre, nom, TEXTE, rang)
        self.presse(champ)
        attend(f"le clavier dans {nom}", lambda: etat(champ, pyatspi.STATE_FOCUSED))
        self.tape(texte)
        attend(f"{texte} dans {nom}", lambda: champ.queryText().getText(0, -1) == texte)

    def ouvre(self, fenetre, bouton):
        """Presses a button of the main window that opens another. @return that one"""
        avant = fenetres(self.application)
        self.presse(self.trouve(fenetre, bouton, BOUTON))
        return attend(f"la fenêtre de {bouton}", lambda: ouverte(self.application, avant))

    def ferme(self, fenetre):
        self.presse(self.trouve(fenetre, "Fermer", BOUTON))
        attend(f"{fenetre.name} se ferme", lambda: not montre(fenetre))

    def base(self, fenetre, heure):
        for nom, texte in zip(BASE, ("21/06/2026", heure, "47 30 N", "5 10 W", "225", "6", "2.5", "-1")):
            self.remplit(fenetre, nom, texte)

    def visees(self, nombre):
        """Waits until so many sights have been reduced."""
        def la():
            with open(self.journal, encoding="utf-8") as lignes:
                return len(lignes.readlines()) == nombre + 1
        attend(f"{nombre} visées au journal", la)


def image(dossier, nom):
    subprocess.run(["import", "-window", "root", f"{dossier}/souris-jour-{nom}.png"], check=False)


def journee(main, fenetre, donnees, images):
    plan = main.ouvre(fenetre, "Plan")
    main.base(plan, "03:40")
    main.presse(main.trouve(plan, "Jeux", ONGLET))
    image(images, "1-jeux")
    main.ferme(plan)

    for rang, etoile in enumerate(("1 Vega.LoP", "2 Altair.LoP", "3 Capella.LoP")):
        fichiers = main.ouvre(fenetre, "Ouvre le Fichier")
        if rang == 0:
            main.presse(main.trouve(fichiers, "journee", LIGNE), 2)
        main.presse(main.trouve(fichiers, etoile, LIGNE), 2)
        attend("le choix se ferme", lambda: not montre(fichiers))
        main.presse(main.trouve(fenetre, "Calcul", BOUTON))
        main.visees(rang + 1)
    image(images, "2-etoiles")

    point = main.ouvre(fenetre, "Point")
    for nom, texte in (("Date", "21/06/2026"), ("Heure", "03:30"), ("Cap vrai (°)", "225"), ("Vitesse (nds)", "6")):
        main.remplit(point, nom, texte)
    main.presse(main.trouve(point, "Ajouter", BOUTON))
    main.presse(main.trouve(point, "Garder", BOUTON))
    attend("le point gardé", lambda: os.path.exists(donnees + "/points.csv"))
    with open(donnees + "/points.csv", encoding="utf-8") as lignes:
        garde = lignes.read()
    if "T03:44:00Z,47.49" not in garde or ",-5.17" not in garde:
        raise SystemExit(f"ÉCHEC : le point n'est pas celui du guide : {garde}")
    image(images, "3-point")
    main.ferme(point)

    serie = main.ouvre(fenetre, "Série")
    main.base(serie, "09:00")
    main.presse(main.trouve(serie, "Astre", LISTE))
    main.tape("Soleil")
    touche("Return")
    for heure, lecture in LECTURES:
        main.remplit(serie, "Heure (UTC)", heure, 1)
        main.remplit(serie, "Lecture", lecture)
        main.presse(main.trouve(serie, "Ajouter", BOUTON))
    image(images, "4-serie")
    main.presse(main.trouve(serie, "Prendre", BOUTON))
    main.ferme(serie)
    main.presse(main.trouve(fenetre, "Calcul", BOUTON))
    main.visees(4)

    papier = main.ouvre(fenetre, "Papier")
    main.presse(main.trouve(papier, "Page du jour", ONGLET))
    for nom, texte in (("Vent", "SW 4"), ("Mer", "belle")):
        main.remplit(papier, nom, texte)
    image(images, "5-page")
    main.ferme(papier)


def main(chemin, exemples, images):
    os.makedirs(images, exist_ok=True)
    with tempfile.TemporaryDirectory() as travail:
        milieu = dict(os.environ, XDG_DATA_HOME=travail + "/donnees", HOME=travail + "/maison", LC_ALL="C.UTF-8",
                      TZ="UTC", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        milieu.setdefault("XDG_RUNTIME_DIR", travail)
        shutil.copytree(exemples + "/journee", travail + "/maison/journee")
        gestionnaire = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        attend("le gestionnaire", gere)
        velmaris = subprocess.Popen([chemin], env=milieu)
        try:
            application = attend("le programme sur le bus", lambda: programme(velmaris.pid))
            fenetre = attend("la fenêtre", lambda: ouverte(application, []))
            donnees = travail + "/donnees/velmaris"
            hand = Main(application, donnees + "/journal.csv")
            journee(hand, fenetre, donnees, images)
        except BaseException:
            image(images, "echec")
            raise
        finally:
            velmaris.terminate()
            velmaris.wait(timeout=120)
            gestionnaire.terminate()
    duree = hand.presses * PRESSE + hand.frappes * FRAPPE
    print(f"{hand.presses} presses, {hand.frappes} frappes : {duree:.0f} s d'une main")
    if duree > PERMIS:
        raise SystemExit("ÉCHEC : plus de quatre minutes")


if __name__ == "__main__":
    main(*sys.argv[1:])
