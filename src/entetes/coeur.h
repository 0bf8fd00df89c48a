#pragma once

// What nearly every source of the program includes, compiled once. No source relies on it: each names what it uses, and
// a build with VORLAIN_PCH=OFF holds them to it.

#include <QByteArray>
#include <QDate>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <utility>
#include <vector>
