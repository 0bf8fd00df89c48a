#pragma once

#include <QListView>

#include <functional>
#include <vector>

class QLabel;

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

    /// Selects an entry and tells nobody.
    void Place_Sur(int rang);

    /// Puts a header above the first row, aligned with the columns; it moves with them when the list is scrolled.
    void Pose_Entete(QLabel *entete);
    /// Asks for room for that many columns and rows; the columns are always shown whole.
    void Reserve(int colonnes, int lignes);
    [[nodiscard]] QSize sizeHint() const override;

    /// The fixed-pitch font of all lists and their headers.
    static QFont Police();

Q_SIGNALS:
    /// A click, or a key or a mouse that moved the selection: what is shown selected was told.
    void Cliquee(int rang);
    /// A double click, or Enter on an entry; Cliquee() came first.
    void Double_Cliquee(int rang);

protected:
    void keyPressEvent(QKeyEvent *touche) override;
    void mouseReleaseEvent(QMouseEvent *souris) override;
    void resizeEvent(QResizeEvent *evenement) override;

private:
    class Modele;
    [[nodiscard]] int Marge_Texte() const;
    void Place_Entete();
    /// Tells a selection that Qt moved by itself.
    void Dit_Le_Deplacement();

    QLabel *entete_ = nullptr;
    int lignes_reservees_ = 10;
    int rang_dit_ = -1; ///< by the last Cliquee()
    Modele *modele_;
};
