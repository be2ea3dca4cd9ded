// app/window/SampleTableModel.cpp
#include "app/window/SampleTableModel.h"

#include "app/window/DepthUnits.h"
#include "app/window/Texts.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <array>

namespace {

QString dateText(const Date& date) { return shownOrMissing(date.isoText()); }

struct Column {
    const char* heading; // %1: the sign of the units
    const char* meaning;
    Qt::AlignmentFlag alignment;
    QString (*text)(const Sample& sample, char units);
};

constexpr const char* kDepthMeaning =
    "The depth of a sample is its base, or its top when it has no base.";

// The depth is the core's: base first. American practice dates cuttings at their top, so the
// heading says which it is.
constexpr std::array kColumns{
    Column{"Depth (%1), sample base", kDepthMeaning, Qt::AlignRight,
        [](const Sample& s, char units) { return depthText(s.GetDepth('M', 0, 0), units); }},
    Column{"Top (%1)", "Top of the sampled interval", Qt::AlignRight,
        [](const Sample& s, char units) { return depthText(s.top, units); }},
    Column{"Base (%1)", "Base of the sampled interval", Qt::AlignRight,
        [](const Sample& s, char units) { return depthText(s.base, units); }},
    Column{"Type", "Kind of sample: CU, SC, CO, OC or LOG", Qt::AlignHCenter,
        [](const Sample& s, char) { return shownOrMissing(s.type.view()); }},
    Column{"Label", "What the sample is called", Qt::AlignLeft,
        [](const Sample& s, char) { return shownOrMissing(s.label.view()); }},
    Column{"Created", "The day the sample was entered", Qt::AlignLeft,
        [](const Sample& s, char) { return dateText(s.created); }},
    Column{"Created by", "Who entered the sample", Qt::AlignLeft,
        [](const Sample& s, char) { return shownOrMissing(s.creator.view()); }},
    Column{"Changed", "The day the sample was last changed", Qt::AlignLeft,
        [](const Sample& s, char) { return dateText(s.modified); }},
    Column{"Changed by", "Who changed the sample last", Qt::AlignLeft,
        [](const Sample& s, char) { return shownOrMissing(s.modifier.view()); }},
};
constexpr int kDepthColumns = 3; // the first ones
constexpr int kTypeColumn = 3;

struct TypeWord {
    const char* code;
    const char* word;
};
constexpr TypeWord kTypeWords[] = {
    {"CU", "cuttings"},
    {"SC", "sidewall core"},
    {"CO", "core"},
    {"OC", "outcrop"},
    {"LOG", "log"},
};

QVariant alignment(const Column& column)
{
    return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
}

QString typeWord(const Sample& sample)
{
    for (const TypeWord& type : kTypeWords) {
        if (sample.type == type.code)
            return SampleTableModel::tr(type.word);
    }
    return {};
}

} // namespace

void SampleTableModel::show(const Well* well, char units)
{
    beginResetModel();
    samples_.clear();
    if (well)
        samples_.assign(well->samples.begin(), well->samples.end());
    units_ = units;
    endResetModel();
}

void SampleTableModel::setUnits(char units)
{
    units_ = units;
    emit headerDataChanged(Qt::Horizontal, 0, kDepthColumns - 1);
    if (!samples_.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, kDepthColumns - 1));
}

int SampleTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(samples_.size());
}

int SampleTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kColumns.size());
}

QVariant SampleTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Sample& sample = *samples_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return kColumns[static_cast<std::size_t>(index.column())].text(sample, units_);
    case Qt::ToolTipRole:
        return index.column() == kTypeColumn ? QVariant(typeWord(sample)) : QVariant();
    case Qt::TextAlignmentRole:
        return alignment(kColumns[static_cast<std::size_t>(index.column())]);
    default:
        return {};
    }
}

QVariant SampleTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    const Column& column = kColumns[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return tr(column.heading).replace(QLatin1String("%1"), unitsSign(units_));
    if (role == Qt::ToolTipRole)
        return tr(column.meaning);
    return role == Qt::TextAlignmentRole ? alignment(column) : QVariant();
}
