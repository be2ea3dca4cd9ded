// app/window/TaxonPanel.cpp
#include "app/window/TaxonPanel.h"

#include "app/window/FieldLabels.h"
#include "app/window/NameText.h"
#include "app/window/Texts.h"
#include "taxonomy/Taxon.h"

#include <QGridLayout>
#include <QLabel>

namespace {

// The parts of a name, each with the places for marks in front of it and behind it.
struct Part {
    const char* caption;
    int inFront, name, behind;
};
constexpr Part kParts[] = {
    {"Genus", slot::preGenus, slot::genus, slot::postGenus},
    {"Subgenus", slot::preSubgenus, slot::subgenus, slot::postSubgenus},
    {"Species", slot::preSpecies, slot::species, slot::postSpecies},
    {"Subspecies", slot::preSubspecies, slot::subspecies, slot::postSubspecies},
};

NameText upright(const QString& text) { return {text, {}}; }

NameText uprightOrMissing(const char* stored)
{
    return upright(shownOrMissing(stored ? stored : ""));
}

/// What the dictionary says beside the slots.
struct FurtherField {
    const char* caption;
    NameText (*text)(Taxon& taxon);
};
constexpr FurtherField kFurther[] = {
    {"Year",
        [](Taxon& t) { return upright(t.year == 0 ? missingText() : QString::number(t.year)); }},
    {"Name to use",
        [](Taxon& t) { return t.preferred() ? nameText(*t.preferred()) : upright(missingText()); }},
    {"Code", [](Taxon& t) { return uprightOrMissing(t.alphaCodeText(0).c_str()); }},
    {"Number", [](Taxon& t) { return upright(QString::number(t.spec_id())); }},
    {"Notes", [](Taxon& t) { return uprightOrMissing(t.loadNotes()); }},
    {"References", [](Taxon& t) { return uprightOrMissing(t.loadReferences()); }},
};

// Columns of the grid: captions, and the three places of a part.
enum GridColumn { Captions, InFront, Name, Behind };
constexpr int kNameShare = 3; // of the width, marks take one each

QString fieldName(int number)
{
    return TaxonPanel::tr(std::string(slotRule(number).fieldName).c_str());
}

} // namespace

TaxonPanel::TaxonPanel(QWidget* parent)
    : FieldPanel(parent)
    , grid_(new QGridLayout(widget()))
    , title_(makeTitle(widget()))
{
    title_->setObjectName(QStringLiteral("taxonTitle"));
    title_->setTextFormat(Qt::RichText);
    title_->setWordWrap(true);
    grid_->addWidget(title_, 0, 0, 1, -1);
    makeParts();
    addField(slot::author);
    for (const FurtherField& field : kFurther)
        further_.push_back(addLine(tr(field.caption)));
    grid_->setColumnStretch(InFront, 1);
    grid_->setColumnStretch(Name, kNameShare);
    grid_->setColumnStretch(Behind, 1);
    grid_->setRowStretch(grid_->rowCount(), 1);
    setObjectName(QStringLiteral("taxonPanel"));
    setAccessibleName(tr("Parts of the name"));
    showTaxon(nullptr);
}

void TaxonPanel::showTaxon(Taxon* taxon)
{
    std::vector<HeaderField> fields;
    if (taxon) {
        const NameText name = nameText(*taxon);
        title_->setText(name.html());
        fields.push_back({tr("Name"), name.text});
        for (int number = 0; number < slot::count; ++number)
            fields.push_back(showSlot(*taxon, number));
        for (std::size_t i = 0; i < further_.size(); ++i) {
            const NameText text = kFurther[i].text(*taxon);
            further_[i]->setText(text.html());
            fields.push_back({tr(kFurther[i].caption), text.text});
        }
    }
    setFields(std::move(fields));
}

HeaderField TaxonPanel::showSlot(const Taxon& taxon, int number)
{
    const QString text = shownOrMissing(taxon.field(number));
    slots_[static_cast<std::size_t>(number)]->setText(text);
    return {fieldName(number), text};
}

void TaxonPanel::makeParts()
{
    addField(slot::category);
    const int heading = grid_->rowCount();
    grid_->addWidget(addCaption(tr("in front")), heading, InFront);
    grid_->addWidget(addCaption(tr("name")), heading, Name);
    grid_->addWidget(addCaption(tr("behind")), heading, Behind);
    for (const Part& part : kParts) {
        const int row = grid_->rowCount();
        grid_->addWidget(addCaption(tr(part.caption)), row, Captions);
        addSlot(part.inFront, row, InFront, 1);
        addSlot(part.name, row, Name, 1);
        addSlot(part.behind, row, Behind, 1);
    }
}

void TaxonPanel::addSlot(int number, int row, int column, int columns)
{
    QLabel* value = makeValue(widget(), fieldName(number));
    value->setObjectName(QStringLiteral("slot%1").arg(number));
    grid_->addWidget(value, row, column, 1, columns);
    slots_[static_cast<std::size_t>(number)] = value;
}

void TaxonPanel::addField(int number)
{
    const int row = grid_->rowCount();
    grid_->addWidget(addCaption(fieldName(number)), row, Captions);
    addSlot(number, row, InFront, -1);
}

QLabel* TaxonPanel::addLine(const QString& caption)
{
    const int row = grid_->rowCount();
    QLabel* value = makeValue(widget(), caption);
    value->setTextFormat(Qt::RichText);
    grid_->addWidget(addCaption(caption), row, Captions);
    grid_->addWidget(value, row, InFront, 1, -1);
    return value;
}
