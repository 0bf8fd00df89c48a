#pragma once

#include <QWidget>

#include <functional>

/// A screen: a top-level window of its own, which goes away when it is closed. Its objectName is its given name.
class Ecran : public QWidget {
    Q_OBJECT

public:
    Ecran(const QString &nom, const QString &titre);

    /// True while the screen holds what the operator has not stored yet: it is then never replaced by a new one.
    [[nodiscard]] virtual bool Garde_Ouvert() const { return false; }
    /// Another log stands on the main screen. A screen that works on that log turns to it here; the others go on with
    /// the one that they name.
    virtual void Suit_Le_Log() {}
};

/// What becomes of a screen that is open when it is asked for again.
enum class Reouverture {
    Refaite,     ///< closed and made anew, with what it shows
    Telle_Quelle ///< comes forward as it stands
};

/// What a screen left open belongs to.
enum class Attache {
    Libre,
    Station, ///< it shows logs of the station and closes when that changes
    Log      ///< it shows, of several logs, the one on the main screen, and closes when another takes its place
};

/// A screen as it is registered: its name, what makes it, and what becomes of it while it is open.
struct Inscription {
    QString nom;
    std::function<Ecran *()> fabrique;
    Reouverture reouverture = Reouverture::Refaite;
    Attache attache = Attache::Libre;
};

/// Puts a window in the middle of the desktop, at the size its layout asks for.
void Centre(QWidget &fenetre);
