#include "qsl/ecrans/Liste_A_Cocher.h"

#include "ecrans/Liste_Fixe.h"

#include <QAbstractListModel>

#include <utility>

class Liste_A_Cocher::Modele : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    std::vector<QString> entrees;
    std::vector<bool> coches;

    void Remplit(std::vector<QString> nouvelles)
    {
        beginResetModel();
        entrees = std::move(nouvelles);
        coches.assign(entrees.size(), false);
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(entrees.size());
    }

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        const auto rang = static_cast<std::size_t>(index.row());
        if (role == Qt::DisplayRole)
            return entrees[rang];
        if (role == Qt::CheckStateRole)
            return coches[rang] ? Qt::Checked : Qt::Unchecked;
        return {};
    }

    bool setData(const QModelIndex &index, const QVariant &valeur, int role) override
    {
        if (role != Qt::CheckStateRole)
            return false;
        coches[static_cast<std::size_t>(index.row())] = valeur.toInt() == Qt::Checked;
        Q_EMIT dataChanged(index, index, {role});
        return true;
    }

    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable;
    }
};

Liste_A_Cocher::Liste_A_Cocher(QWidget *parent) : QListView(parent), modele_(new Modele(this))
{
    setModel(modele_);
    setFont(Liste_Fixe::Police());
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
}

Liste_A_Cocher::~Liste_A_Cocher() = default;

void Liste_A_Cocher::Remplit(std::vector<QString> entrees)
{
    modele_->Remplit(std::move(entrees));
}

bool Liste_A_Cocher::Est_Vide() const
{
    return modele_->entrees.empty();
}

const std::vector<QString> &Liste_A_Cocher::Entrees() const
{
    return modele_->entrees;
}

std::vector<QString> Liste_A_Cocher::Cochees() const
{
    std::vector<QString> cochees;
    for (std::size_t rang = 0; rang < modele_->entrees.size(); ++rang)
        if (modele_->coches[rang])
            cochees.push_back(modele_->entrees[rang]);
    return cochees;
}
