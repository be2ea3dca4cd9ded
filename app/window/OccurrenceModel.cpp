// app/window/OccurrenceModel.cpp
#include "app/window/OccurrenceModel.h"

#include "app/window/DepthUnits.h"
#include "app/window/NameDelegate.h"
#include "app/window/OccurrenceTable.h"
#include "app/window/SampleTexts.h"
#include "app/window/Texts.h"
#include "well/Sample.h"

#include <QFont>

#include <algorithm>
#include <array>

namespace {

using Row = OccurrenceTable::Row;
using Examined = OccurrenceTable::Examined;

struct Heading {
    const char* text;
    const char* meaning;
};
constexpr std::array<Heading, OccurrenceModel::kSampleColumns> kHeadings{{
    {"Depth (%1),\nsample base", kSampleDepthMeaning},
    {"Type", "Kind of sample: CU, SC, CO, OC or LOG"},
    {"Label", "What the sample is called"},
    {"Taxa",
        "How many taxa were found; barren when the sample was examined and held none, a dash "
        "when it was not examined"},
}};

const Heading& heading(int column) { return kHeadings[static_cast<std::size_t>(column)]; }

NameText headName(const Taxon& taxon)
{
    return markedName(Taxon(taxon).displayName(0, 1, 0, 0)); // composing needs one that may change
}

QString cellText(std::span<const Find> finds)
{
    QStringList texts;
    for (const Find& find : finds)
        texts += findText(find);
    return texts.join(QLatin1String(", "));
}

bool hasMarker(std::span<const Find> finds)
{
    return std::ranges::any_of(finds, [](const Find& f) { return f.occurrence->marker != 0; });
}

QString taxaText(const Row& row)
{
    switch (row.examined) {
    case Examined::No:
        return missingText();
    case Examined::Barren:
        return OccurrenceModel::tr("barren");
    case Examined::NotLoaded:
        return OccurrenceModel::tr("not loaded");
    case Examined::Yes:
        break;
    }
    return QString::number(row.taxa);
}

QString taxaWords(const Row& row)
{
    switch (row.examined) {
    case Examined::No:
        return OccurrenceModel::tr("not examined");
    case Examined::Barren:
        return OccurrenceModel::tr("examined, and nothing was found");
    case Examined::NotLoaded:
        return OccurrenceModel::tr("examined; what was found is not loaded");
    case Examined::Yes:
        break;
    }
    return OccurrenceModel::tr("taxa found: %1").arg(row.taxa);
}

QVariant alignment(int column)
{
    const bool isText = column == OccurrenceModel::Label;
    const bool isNumber = column == OccurrenceModel::Depth || column == OccurrenceModel::Taxa;
    return QVariant::fromValue((isText            ? Qt::AlignLeft
                                       : isNumber ? Qt::AlignRight
                                                  : Qt::AlignHCenter)
        | Qt::AlignVCenter);
}

QString placeText(const Row& row, char units)
{
    QString text = sampleDepthText(*row.sample, units) + QLatin1Char(' ') + unitsSign(units);
    if (const QString type = sampleTypeWord(*row.sample); !type.isEmpty())
        text += QLatin1String(", ") + type;
    if (!row.sample->label.view().empty())
        text += QLatin1Char(' ') + shownOrMissing(row.sample->label.view());
    return text;
}

} // namespace

OccurrenceModel::OccurrenceModel(QObject* parent)
    : QAbstractTableModel(parent)
    , table_(std::make_unique<OccurrenceTable>())
{
}

OccurrenceModel::~OccurrenceModel() = default;

void OccurrenceModel::show(std::unique_ptr<const OccurrenceTable> table, char units)
{
    beginResetModel();
    table_ = std::move(table);
    units_ = units;
    names_.clear();
    for (const TaxonRange* range : table_->columns())
        names_.push_back(headName(*range->taxon));
    findLongestTexts();
    endResetModel();
}

// Asking the cells for their widths one by one takes long in a large well.
void OccurrenceModel::findLongestTexts()
{
    longest_.assign(names_.size(), QString());
    for (int row = 0; row < rowCount(); ++row) {
        for (int taxon = 0; taxon < static_cast<int>(names_.size()); ++taxon) {
            const auto finds = table_->at(row, taxon);
            if (finds.empty())
                continue;
            QString& longest = longest_[static_cast<std::size_t>(taxon)];
            if (QString text = cellText(finds); text.size() > longest.size())
                longest = std::move(text);
        }
    }
}

void OccurrenceModel::setUnits(char units)
{
    units_ = units;
    emit headerDataChanged(Qt::Horizontal, Depth, Depth);
    if (rowCount() > 0)
        emit dataChanged(index(0, Depth), index(rowCount() - 1, Depth));
}

int OccurrenceModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(table_->rows().size());
}

int OccurrenceModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kSampleColumns + static_cast<int>(names_.size());
}

QVariant OccurrenceModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(index.column());
    return index.column() < kSampleColumns ? sampleData(index, role) : findData(index, role);
}

QVariant OccurrenceModel::sampleData(const QModelIndex& index, int role) const
{
    const Row& row = table_->rows()[static_cast<std::size_t>(index.row())];
    const Sample& sample = *row.sample;
    const int column = index.column();
    if (role == Qt::ToolTipRole && column == Taxa)
        return taxaWords(row);
    if (role == Qt::ToolTipRole && column == Type)
        return sampleTypeWord(sample);
    if (role != Qt::DisplayRole)
        return {};
    switch (column) {
    case Depth:
        return sampleDepthText(sample, units_);
    case Type:
        return shownOrMissing(sample.type.view());
    case Label:
        return shownOrMissing(sample.label.view());
    default:
        return taxaText(row);
    }
}

QVariant OccurrenceModel::findData(const QModelIndex& index, int role) const
{
    const int taxon = index.column() - kSampleColumns;
    const auto finds = table_->at(index.row(), taxon);
    if (finds.empty())
        return {};
    if (role == Qt::DisplayRole)
        return cellText(finds);
    if (role == Qt::FontRole && hasMarker(finds)) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    if (role != Qt::ToolTipRole && role != Qt::AccessibleDescriptionRole)
        return {};
    QStringList lines{names_[static_cast<std::size_t>(taxon)].text,
        placeText(table_->rows()[static_cast<std::size_t>(index.row())], units_)};
    for (const Find& find : finds)
        lines += findWords(find);
    return lines.join(QLatin1Char('\n'));
}

QVariant OccurrenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    if (section < kSampleColumns) {
        if (role == Qt::DisplayRole)
            return tr(heading(section).text).replace(QLatin1String("%1"), unitsSign(units_));
        return role == Qt::ToolTipRole ? QVariant(tr(heading(section).meaning)) : QVariant();
    }
    const auto taxon = static_cast<std::size_t>(section - kSampleColumns);
    switch (role) {
    case Qt::DisplayRole:
        return names_[taxon].text;
    case NameDelegate::kNameRole:
        return QVariant::fromValue(names_[taxon]);
    case Qt::ToolTipRole:
        return rangeWords(*table_->columns()[taxon]);
    default:
        return {};
    }
}

// The whole discipline's range, whoever's finds are shown.
QString OccurrenceModel::rangeWords(const TaxonRange& range) const
{
    Taxon taxon(*range.taxon);
    const auto end = [&](const RangeEnd& found, const QString& word) {
        if (!found.sample)
            return QString();
        const QString why = QString::fromStdString(found.why);
        return QLatin1Char('\n')
            + word.arg(sampleDepthText(*found.sample, units_), unitsSign(units_))
            + (why.isEmpty() ? why : QLatin1String(" (") + why + QLatin1Char(')'));
    };
    return nameText(taxon).text + end(range.top, tr("top at %1 %2"))
        + end(range.base, tr("base at %1 %2"));
}
