// app/window/LithologyDialog.cpp
#include "app/window/LithologyDialog.h"

#include "app/shell/LithologyEditing.h"
#include "app/window/Choices.h"
#include "app/window/DepthUnits.h"
#include "app/window/LithologyTable.h"
#include "app/window/Texts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr char kKinds[] = {LithDicTerm::kMainLithology, 'A', 'Q', 'S'};

QLineEdit* makeEdit(const char* object)
{
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(object));
    return edit;
}

QString termText(const LithDicTerm& term)
{
    const QString name = shownOrMissing(term.descr.view());
    return term.abr.empty() ? name
                            : QStringLiteral("%1 (%2)").arg(name, shownOrMissing(term.abr.view()));
}

} // namespace

LithologyDialog::LithologyDialog(
    LithologyEditing& edits, const IGDBase* record, char units, QWidget* parent)
    : QDialog(parent)
    , edits_(edits)
    , record_(record)
    , units_(units)
    , kinds_(makeCombo("lithologyKind", tr("Kind")))
    , top_(makeEdit("lithologyTop"))
    , base_(makeEdit("lithologyBase"))
    , rocks_(makeCombo("lithologyRock", tr("Rock")))
{
    setObjectName(QStringLiteral("lithologyDialog"));
    setWindowTitle(record ? tr("Change lithology") : tr("Add lithology"));
    auto* form = new QFormLayout;
    form->addRow(tr("&Kind"), kinds_);
    const QString sign = unitsSign(units);
    faults_[static_cast<int>(LithologyField::Top)] =
        addField(*form, tr("&Top (%1)").arg(sign), top_);
    faults_[static_cast<int>(LithologyField::Base)] =
        addField(*form, tr("&Base (%1)").arg(sign), base_);
    faults_[static_cast<int>(LithologyField::Rock)] = addField(*form, tr("&Rock"), rocks_);
    listKinds();
    showRecord();
    if (record)
        showSaid(*form);
    faults_[static_cast<int>(LithologyField::All)] = addField(*form, {}, nullptr);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    connect(kinds_, &QComboBox::activated, this, &LithologyDialog::listRocks);
    connect(buttons, &QDialogButtonBox::accepted, this, &LithologyDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &LithologyDialog::reject);
    top_->setFocus();
}

void LithologyDialog::accept()
{
    const LithologyInput input{kinds_->currentData().value<char>(), top_->text().toStdString(),
        base_->text().toStdString(), rocks_->currentData().value<long>()};
    const LithologyEdit edit =
        record_ ? edits_.change(*record_, input, units_) : edits_.add(input, units_);
    for (QLabel* fault : faults_)
        tell(fault, {});
    for (const LithologyFault& fault : edit.faults)
        tell(faults_[static_cast<int>(fault.field)], QString::fromStdString(fault.text));
    if (!edit.record) {
        QWidget* const fields[] = {top_, base_, rocks_, top_};
        fields[static_cast<int>(edit.faults.front().field)]->setFocus();
        return;
    }
    put_ = edit.record;
    QDialog::accept();
}

/// The place below the field where its fault is told.
QLabel* LithologyDialog::addField(QFormLayout& form, const QString& caption, QWidget* field)
{
    if (field)
        form.addRow(caption, field);
    auto* fault = new QLabel;
    fault->setWordWrap(true);
    fault->setTextFormat(Qt::PlainText);
    fault->setObjectName(
        field ? field->objectName() + QLatin1String("Fault") : QStringLiteral("lithologyFault"));
    QFont bold = fault->font();
    bold.setBold(true);
    fault->setFont(bold);
    fault->hide();
    form.addRow(QString(), fault);
    return fault;
}

// What a record is stays: a rock and a qualifier are kept in different tables.
void LithologyDialog::listKinds()
{
    if (record_) {
        const char kind = lithologyKind(*record_);
        kinds_->addItem(kindText(kind), QVariant::fromValue(kind));
        kinds_->setEnabled(false);
    } else {
        for (const char kind : kKinds)
            kinds_->addItem(kindText(kind), QVariant::fromValue(kind));
    }
    listRocks();
}

void LithologyDialog::listRocks()
{
    rocks_->clear();
    for (const LithDicTerm* term : edits_.termsOf(kinds_->currentData().value<char>()))
        rocks_->addItem(termText(*term), QVariant::fromValue(term->lith_id));
    rocks_->setPlaceholderText(rocks_->count() == 0 ? tr("The dictionary has none") : tr("Choose"));
    rocks_->setCurrentIndex(-1);
}

void LithologyDialog::showRecord()
{
    if (!record_)
        return;
    const LithologyInput said = edits_.inputOf(*record_, units_);
    top_->setText(QString::fromStdString(said.top));
    base_->setText(QString::fromStdString(said.base));
    const QVariant rock = QVariant::fromValue(said.lith_id);
    if (rocks_->findData(rock) < 0) // no term of that kind, but the record has it
        rocks_->addItem(shownOrMissing(record_->label()), rock);
    rocks_->setCurrentIndex(rocks_->findData(rock));
}

void LithologyDialog::showSaid(QFormLayout& form)
{
    QStringList lines;
    for (const std::string& said : edits_.saidOf(*record_, units_))
        lines += QString::fromStdString(said);
    auto* label = new QLabel(lines.isEmpty() ? missingText() : lines.join(QLatin1Char('\n')));
    label->setObjectName(QStringLiteral("lithologySaid"));
    label->setTextFormat(Qt::PlainText);
    form.addRow(tr("Also said"), label);
}

void LithologyDialog::tell(QLabel* fault, const QString& text)
{
    fault->setText(text);
    fault->setVisible(!text.isEmpty());
}
