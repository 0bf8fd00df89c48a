#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <map>

/// One department of the map, in the units of the picture.
struct Departement {
    QPointF place; ///< of its box, deep inside the outline
    QPainterPath contour;
};

/// The size of the picture that the outlines are drawn in.
inline constexpr QSizeF taille_fond{613, 585};

/// The departments by their number of two characters, from the program's own resource.
std::map<QString, Departement> Charge_Fond();
