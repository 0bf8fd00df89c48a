#pragma once

#include <QString>
#include <QStringView>

#include <vector>

/// The order of every sorted list: upper-cased text by code point, a shorter text before the longer one it begins.
/// True if `a` stands before `b`.
bool Avant_Sans_Casse(QStringView a, QStringView b);

/// Puts the texts in that order; those that differ in case alone keep their places among themselves.
void Trie_Sans_Casse(std::vector<QString> &textes);
