#!/usr/bin/python3
"""Walks every window as a screen reader sees it, over the desktop's own bus for assistive tools.

Usage: dbus-run-session -- python3 accessible.py PROGRAMME EXEMPLE   (needs DISPLAY)

Each control that takes the keyboard has a name and a role, no two fields of one group share a name, Tab comes to each of
them, what is typed and what is computed is read back as text, and all names follow the language.
"""

import os
import re
import subprocess
import sys
import tempfile
import time

import pyatspi

PATIENCE = 120  # seconds: a busy machine takes its time
PAUSE = 0.1
CHAMPS = (pyatspi.ROLE_TEXT, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_LIST, pyatspi.ROLE_SLIDER)
SANS_ROLE = (pyatspi.ROLE_UNKNOWN, pyatspi.ROLE_INVALID)
MODULES = ("Affiche ou efface le module Soleil.", "Affiche ou efface le module Droites Multiples", "Affiche ou efface le module Caps et distances",
           "Affiche ou efface le module Estime.", "Affiche ou efface le module Carte.")
COMPLEMENTS = {"le registre": "ctrl+l", "le point": "ctrl+g", "la préparation": "ctrl+k", "la série": "ctrl+r",
               "l'exercice": "ctrl+e", "les pages": "ctrl+shift+a"}
INTERCEPT = r"Intercept.* -?[0-9]"
FAUTES = []


def attend(quoi, condition):
    """Waits for what a condition gives."""
    fin = time.monotonic() + PATIENCE
    while time.monotonic() < fin:
        try:
            valeur = condition()
        except Exception:  # a window that goes while it is read
            valeur = None
        if valeur:
            return valeur
        time.sleep(PAUSE)
    raise SystemExit(f"ÉCHEC : attendu en vain : {quoi}")


def verifie(vrai, quoi):
    if not vrai:
        FAUTES.append(quoi)
        print("ÉCHEC :", quoi, file=sys.stderr)


def dans(noeud):
    """The node and all under it that is on the screen."""
    if noeud is None:
        return
    yield noeud
    for i in range(noeud.childCount):
        yield from dans(noeud.getChildAtIndex(i))


def etat(noeud, *lesquels):
    etats = noeud.getState()
    return all(etats.contains(e) for e in lesquels)


def montre(noeud):
    return etat(noeud, pyatspi.STATE_SHOWING, pyatspi.STATE_VISIBLE)


def trouve(racine, nom, *roles):
    for noeud in dans(racine):
        if noeud.name == nom and (not roles or noeud.getRole() in roles) and montre(noeud):
            return noeud
    return None


def dit(noeud):
    return f"{noeud.getRoleName()} « {noeud.name} »"


def presse(noeud):
    """What a screen reader does with a button."""
    actions = noeud.queryAction()
    noms = [actions.getName(i) for i in range(actions.nActions)]
    actions.doAction(noms.index("Press") if "Press" in noms else 0)


def touche(*touches):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *touches], check=True)
    time.sleep(PAUSE)


def controles(fenetre):
    return [n for n in dans(fenetre) if etat(n, pyatspi.STATE_FOCUSABLE, pyatspi.STATE_ENABLED) and montre(n)
            and n.getRole() not in (pyatspi.ROLE_FRAME, pyatspi.ROLE_DIALOG, pyatspi.ROLE_LIST_ITEM,
                                    pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_TABLE_CELL, pyatspi.ROLE_PAGE_TAB,
                                    pyatspi.ROLE_SCROLL_PANE, pyatspi.ROLE_VIEWPORT)]


def fautes(fenetre):
    """What is wrong with names and roles in a window."""
    tous, vus, dites = controles(fenetre), set(), []
    if not tous:
        dites.append("aucun contrôle")
    for noeud in tous:
        if not noeud.name.strip() or "&" in noeud.name or noeud.getRole() in SANS_ROLE:
            dites.append(f"nom ou rôle : {dit(noeud)} dans {dit(noeud.parent)}")
        if noeud.getRole() in CHAMPS:
            if cle(noeud) in vus:
                dites.append(f"deux fois {dit(noeud)} dans {dit(noeud.parent)}")
            vus.add(cle(noeud))
    for noeud in dans(fenetre):
        if montre(noeud) and noeud.getRole() in (pyatspi.ROLE_CANVAS, pyatspi.ROLE_IMAGE) and not noeud.name.strip():
            dites.append(f"sans nom : {dit(noeud)} dans {dit(noeud.parent)}")
    return dites


def examine(fenetre, titre):
    """Names and roles of a window, once what comes and goes in it has settled. @return its controls"""
    dites = ["rien n'a été lu"]
    for _ in range(10):
        dites = fautes(fenetre)
        if not dites:
            break
        time.sleep(0.5)
    for faute in dites:
        verifie(False, f"{titre} : {faute}")
    return controles(fenetre)


def cle(noeud):
    return noeud.parent.name, noeud.name


def parcourt(fenetre, titre, tous):
    """Every control of a window is reached by Tab; of a group of options the one that is chosen."""
    voulus = [n for n in tous if n.getRole() != pyatspi.ROLE_CANVAS and
              (n.getRole() != pyatspi.ROLE_RADIO_BUTTON or etat(n, pyatspi.STATE_CHECKED))]
    attend(f"le clavier dans {titre}", lambda: etat(fenetre, pyatspi.STATE_ACTIVE))
    atteints = set()
    for _ in range(4 * len(tous) + 10):  # a busy machine tells of the keyboard late
        atteints.update(cle(n) for n in tous if etat(n, pyatspi.STATE_FOCUSED))
        if all(cle(n) in atteints for n in voulus):
            return
        touche("Tab")
    for noeud in voulus:
        verifie(cle(noeud) in atteints, f"{titre} : Tab ne vient pas à {dit(noeud)}")


def programme(pid):
    bureau = pyatspi.Registry.getDesktop(0)
    for i in range(bureau.childCount):
        application = bureau.getChildAtIndex(i)
        if application is not None and application.get_process_id() == pid:
            return application
    return None


def gere():
    """Whether the window manager manages."""
    dit_il = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True, check=False)
    return "window id" in dit_il.stdout


def fenetres(application):
    return [application.getChildAtIndex(i) for i in range(application.childCount)]


def ouverte(application, avant):
    """A window that wasn't there before."""
    for fenetre in fenetres(application):
        if fenetre is not None and fenetre not in avant and montre(fenetre):
            return fenetre
    return None


def main(chemin, exemple):
    with tempfile.TemporaryDirectory() as travail:
        milieu = dict(os.environ, XDG_DATA_HOME=travail + "/donnees", HOME=travail, LC_ALL="C.UTF-8", TZ="UTC",
                      QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        milieu.setdefault("XDG_RUNTIME_DIR", travail)
        gestionnaire = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
        attend("le gestionnaire", gere)  # a window that comes before it isn't given the keyboard
        velmaris = subprocess.Popen([chemin, exemple], env=milieu)
        try:
            application = attend("le programme sur le bus", lambda: programme(velmaris.pid))
            fenetre = attend("la fenêtre", lambda: ouverte(application, []))
            examine_tout(application, fenetre)
        finally:
            velmaris.terminate()
            velmaris.wait(timeout=PATIENCE)
            gestionnaire.terminate()
    if FAUTES:
        raise SystemExit(f"{len(FAUTES)} fautes")
    print("à la voix : bien")


def ouvre_fenetre(application, titre, ouvre):
    """Opens a window, examines it, and closes it by the keyboard."""
    avant = fenetres(application)
    ouvre()
    fenetre = attend(f"la fenêtre {titre}", lambda: ouverte(application, avant))
    parcourt(fenetre, titre, examine(fenetre, titre))
    touche("Escape")
    attend(f"{titre} se ferme", lambda: ouverte(application, avant) is None)


def ouvre_complement(application, titre, raccourci, va=parcourt):
    """Opens a window of the complements by its key, examines each of its pages, goes over it, and closes it."""
    avant = fenetres(application)
    touche(raccourci)
    fenetre = attend(f"la fenêtre {titre}", lambda: ouverte(application, avant))
    for onglet in [n for n in dans(fenetre) if n.getRole() == pyatspi.ROLE_PAGE_TAB] or [None]:
        page = titre
        if onglet is not None:
            page += f", {onglet.name}"
            presse(onglet)
            time.sleep(0.5)
        va(fenetre, page, examine(fenetre, page))
    touche("Escape")
    attend(f"{titre} se ferme", lambda: ouverte(application, avant) is None)


def bouton(fenetre, nom):
    return attend(f"le bouton {nom}", lambda: trouve(fenetre, nom, pyatspi.ROLE_PUSH_BUTTON))


def examine_tout(application, fenetre):
    lecture = attend("la lecture", lambda: trouve(fenetre, "Hauteur lue, minutes", pyatspi.ROLE_TEXT))
    parcourt(fenetre, "au départ", examine(fenetre, "au départ"))
    verifie(trouve(fenetre, "Feuille de tracé et carte", pyatspi.ROLE_CANVAS), "la feuille")
    verifie(trouve(fenetre, "Données", pyatspi.ROLE_PANEL), "le module de la visée est un groupe")
    bouton(fenetre, "Ferme la visée")

    # What is typed is read back, and a result says what it is and how much.
    verifie(lecture.queryText().getText(0, -1) == "34", f"la lecture : {lecture.queryText().getText(0, -1)}")
    presse(bouton(fenetre, "Calcul"))
    attend("l'intercept se lit", lambda: [n for n in dans(fenetre) if montre(n) and re.match(INTERCEPT, n.name)])
    for module in MODULES:
        presse(bouton(fenetre, module))
        examine(fenetre, module)
        if "Soleil" in module:
            for nom in ("Cadran de l'azimut", "Cadran de la hauteur"):
                verifie(trouve(fenetre, nom, pyatspi.ROLE_CANVAS), nom)
        if "Carte" in module:
            ouvre_fenetre(application, "les objets", lambda: presse(bouton(fenetre, "Config")))
        if module != MODULES[-1]:
            presse(bouton(fenetre, module))

    ouvre_fenetre(application, "le ciel", lambda: presse(bouton(fenetre, "Ouvre la fenêtre du ciel")))
    ouvre_fenetre(application, "les fichiers", lambda: presse(bouton(fenetre, "Ouvre le Fichier")))
    ouvre_fenetre(application, "la page", lambda: presse(bouton(fenetre, "Imprime l'écran")))

    for titre, raccourci in COMPLEMENTS.items():
        ouvre_complement(application, titre, raccourci)

    presse(bouton(fenetre, "English"))
    attend("les noms anglais", lambda: trouve(fenetre, "Plotting sheet and chart", pyatspi.ROLE_CANVAS))
    examine(fenetre, "en anglais")
    for titre, raccourci in COMPLEMENTS.items():
        ouvre_complement(application, titre + " en anglais", raccourci, lambda *_: None)
    presse(bouton(fenetre, "Shows or hides the Chart module"))
    presse(bouton(fenetre, "Shows or hides the Sight module"))
    attend("la lecture en anglais", lambda: trouve(fenetre, "Sextant reading, minutes", pyatspi.ROLE_TEXT))


if __name__ == "__main__":
    main(*sys.argv[1:])
