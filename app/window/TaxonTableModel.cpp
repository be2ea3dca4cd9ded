// app/window/TaxonTableModel.cpp
#include "app/window/TaxonTableModel.h"

#include "app/window/NameDelegate.h"
#include "app/window/NameText.h"
#include "app/window/Texts.h"
#include "taxonomy/TaxonList.h"

#include <algorithm>
#include <array>

namespace {

struct Heading {
    const char* text;
    const char* meaning;
};
constexpr std::array<Heading, TaxonTableModel::kColumns> kHeadings{{
    {"Recorded name", "The name as it stands in the dictionary, with author and year"},
    {"Name to use", "The name that the chosen synonymy scheme prefers"},
    {"Category", "The group that the taxon belongs to"},
    {"Code", "The alphabetic code of the taxon"},
}};

// The taxon whose name a cell shows; null: it shows no name.
Taxon* namedIn(Taxon& taxon, int column)
{
    switch (column) {
    case TaxonTableModel::Recorded:
        return &taxon;
    case TaxonTableModel::ToUse:
        return taxon.preferred();
    default:
        return nullptr;
    }
}

QString cellText(Taxon& taxon, int column)
{
    if (Taxon* named = namedIn(taxon, column))
        return nameText(*named).text;
    switch (column) {
    case TaxonTableModel::Category:
        return shownOrMissing(taxon.category());
    case TaxonTableModel::Code:
        return shownOrMissing(taxon.alphaCodeText(0));
    default:
        return missingText();
    }
}

} // namespace

TaxonTableModel::TaxonTableModel(QObject* parent)
    : QAbstractTableModel(parent)
    , taxa_(std::make_unique<TaxonList>())
{
}

TaxonTableModel::~TaxonTableModel() = default;

void TaxonTableModel::show(std::unique_ptr<TaxonList> taxa, long sch_id)
{
    // Read before the rows change: a message box of a failure lets the table paint.
    taxa->loadPreferred(sch_id, 1);
    beginResetModel();
    taxa_ = std::move(taxa);
    rows_.assign(taxa_->begin(), taxa_->end());
    endResetModel();
}

void TaxonTableModel::setScheme(long sch_id)
{
    taxa_->loadPreferred(sch_id, 1);
    if (!rows_.empty())
        emit dataChanged(index(0, ToUse), index(rowCount() - 1, ToUse));
}

int TaxonTableModel::rowOf(long spec_id) const
{
    const auto found = std::find_if(
        rows_.begin(), rows_.end(), [=](const Taxon* t) { return t->spec_id() == spec_id; });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int TaxonTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TaxonTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant TaxonTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    Taxon& row = taxon(index.row());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return cellText(row, index.column());
    Taxon* named = namedIn(row, index.column());
    return role == NameDelegate::kNameRole && named ? QVariant::fromValue(nameText(*named))
                                                    : QVariant();
}

QVariant TaxonTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= kColumns)
        return QAbstractTableModel::headerData(section, orientation, role);
    const Heading& heading = kHeadings[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return tr(heading.text);
    return role == Qt::ToolTipRole ? QVariant(tr(heading.meaning)) : QVariant();
}
