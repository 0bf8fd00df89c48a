#pragma once

#include <QListView>

#include <functional>
#include <vector>

/// A list of fixed-column texts, one a row, in a fixed-pitch font. A text is asked for when its row is shown.
class Liste_Fixe : public QListView {
    Q_OBJECT

public:
    explicit Liste_Fixe(QWidget *parent = nullptr);
    ~Liste_Fixe() override;

    using Texte_De_Rang = std::function<QString(std::size_t)>;
    /// New entries in place of the old ones; none is selected then.
    void Remplit(std::size_t nombre, Texte_De_Rang texte);
    void Remplit(std::vector<QString> entrees);

    [[nodiscard]] int Nombre() const;
    [[nodiscard]] QString Entree(int rang) const;
    /// -1 if none is selected.
    [[nodiscard]] int Rang_Courant() const;
    /// Selects an entry and tells it by Cliquee(), as a click does, also when it was selected already.
    void Selectionne(int rang);

    /// The fixed-pitch font of all lists and their headers.
    static QFont Police();

Q_SIGNALS:
    /// A click, or a key that moved the selection.
    void Cliquee(int rang);
    /// A double click, or Enter on an entry; Cliquee() came first.
    void Double_Cliquee(int rang);

protected:
    void keyPressEvent(QKeyEvent *touche) override;

private:
    class Modele;
    Modele *modele_;
};
