#pragma once

#include <QStringView>

#include <array>

/// An award as the operator knows it: the title of its entry zone, and two references that he would type.
struct Diplome_Vu {
    QStringView code;
    QStringView titre; ///< for the challenges the year stands behind it
    std::array<QStringView, 3> refs;
};

// clang-format off
inline constexpr std::array<Diplome_Vu, 21> diplomes = {{
    {u"Ch_DFCF", u"Challenge DFCF année ", {u"77001A", u"89001R", u"63087B"}},
    {u"Ch_DMF", u"Challenge DMF année ", {u"77001A", u"89001R", u"63087C"}},
    {u"DAF", u"Diplome des Abbayes et Monastères de France", {u"31001A", u"77003", u"89002"}},
    {u"DCF", u"Diplome des Catédrales Basiliques et Collégiales de France", {u"001", u"001B", u"002C"}},
    {u"DCPF", u"Diplome des Colombiers et Pigeonniers de France", {u"81PT001", u"81CA002", u"77PT003"}},
    {u"DDFM", u"Diplome des Départements Français de Métropole", {u"", u"", u""}},
    {u"DFCF", u"Diplome des Forts et Chateaux de France", {u"77001", u"89001", u"63087"}},
    {u"DFF", u"Diplome des Fontaines de France", {u"31FP001", u"77FP002", u"89FP003"}},
    {u"DIFI", u"Diplome des Iles Françaises Interieur", {u"44008R", u"77001", u"89002"}},
    {u"DIFM", u"Diplome des Iles Françaises de Métropole", {u"AT071", u"MA002", u"ME003"}},
    {u"DLF", u"Diplome des Lavoirs de France", {u"77001", u"89001", u"63087"}},
    {u"DMF", u"Diplome des Moulins de France", {u"77001", u"89001", u"63087"}},
    {u"DOHF", u"Diplome des Ouvrages Hydrauliques Français", {u"45EC102", u"45EC001", u"11EC002"}},
    {u"DPF", u"Diplome des Provinces Françaises", {u"", u"", u""}},
    {u"DPLF", u"Diplome des Phares du Littoral Français", {u"PB001", u"PB002", u"PA001"}},
    {u"DVFF", u"Diplome des Voies Ferrées de France", {u"GA18001", u"GVM18001", u"GA77002"}},
    {u"DYLF", u"Diplome des YL de France", {u"", u"", u""}},
    {u"FFF", u"Diplome France Flora Fauna", {u"0051", u"0001", u"0100"}},
    {u"PC", u"Diplome du Patrimoine Culturel", {u"93001", u"77001", u"89002"}},
    {u"TDC", u"Diplome des Tours De Chappe", {u"11-008", u"75-001", u"77-002"}},
    {u"WLF", u"Diplome des Lacs de France", {u"151", u"152", u"001"}},
}};
// clang-format on
