#pragma once

#include <QListView>

#include <vector>

/// A list of fixed-column texts with a check box in front of each.
class Liste_A_Cocher : public QListView {
    Q_OBJECT

public:
    explicit Liste_A_Cocher(QWidget *parent = nullptr);
    ~Liste_A_Cocher() override;

    /// New entries in place of the old ones, none ticked.
    void Remplit(std::vector<QString> entrees);
    [[nodiscard]] bool Est_Vide() const;
    [[nodiscard]] const std::vector<QString> &Entrees() const;
    /// The ticked entries, from the first to the last.
    [[nodiscard]] std::vector<QString> Cochees() const;

private:
    class Modele;
    Modele *modele_;
};
