#pragma once

#include <QString>

#include <memory>

class QWidget;

/// One web view inside a screen. Nothing comes back from the pages: the program only sends the view to an address.
class Vue_Web {
public:
    virtual ~Vue_Web() = default;
    /// The control that shows the pages; it belongs to the parent it was made with and goes with it. Its property
    /// "url" is the page in view or on its way there, empty while there is none.
    [[nodiscard]] virtual QWidget *Controle() = 0;
    /// Shows a page of the web; an address without a scheme is one of plain http. An address of another kind, a file
    /// for one, is refused in words in the view.
    virtual void Navigue(const QString &adresse) = 0;
    /// Shows a plain text in the place of a page.
    virtual void Dit(const QString &texte) = 0;
};

/// Makes the web views.
class Vues_Web {
public:
    virtual ~Vues_Web() = default;
    [[nodiscard]] virtual std::unique_ptr<Vue_Web> Nouvelle(QWidget *parent) = 0;
};

/// The views of this build: with a web engine, or without one, where a view only names the address.
std::unique_ptr<Vues_Web> Vues_Web_Du_Programme();
