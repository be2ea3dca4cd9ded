// app/window/TaxaPage.cpp
#include "app/window/TaxaPage.h"

#include "app/shell/SynonymySchemes.h"
#include "app/shell/TaxonPatterns.h"
#include "app/window/NameDelegate.h"
#include "app/window/Splitting.h"
#include "app/window/TableLook.h"
#include "app/window/TaxonPanel.h"
#include "db/ErrorReporter.h"
#include "taxonomy/TaxonList.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int kTableWidth = 730;
constexpr int kPause = 250;       // milliseconds: longer than between two keys
constexpr int kPanelLetters = 50; // of middling width, in the narrowest panel

QLineEdit* makeField(QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(QStringLiteral("taxonSearch"));
    field->setPlaceholderText(TaxaPage::tr("Find a taxon: genus, species, subspecies"));
    field->setAccessibleName(TaxaPage::tr("Find a taxon: genus, species, subspecies"));
    field->setToolTip(TaxaPage::tr(
        "The beginnings of the words are enough. * stands for any letters, so \"* bull\" finds a "
        "species in every genus; a subgenus stands in brackets."));
    field->setClearButtonEnabled(true);
    return field;
}

QComboBox* makeSchemes(QWidget* parent)
{
    auto* schemes = new QComboBox(parent);
    schemes->setObjectName(QStringLiteral("synonymyScheme"));
    schemes->setAccessibleName(TaxaPage::tr("Synonymy scheme of the names to use"));
    schemes->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return schemes;
}

QTableView* makeTable(QWidget* parent, QAbstractItemModel* taxa)
{
    auto* table = new QTableView(parent);
    table->setObjectName(QStringLiteral("taxonTable"));
    table->setAccessibleName(TaxaPage::tr("Taxa found"));
    table->setModel(taxa);
    table->setItemDelegate(new NameDelegate(table));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->verticalHeader()->hide();
    lookLikeTable(*table);
    table->horizontalHeader()->setStretchLastSection(false);
    const auto fit = [&](int column, QHeaderView::ResizeMode mode) {
        table->horizontalHeader()->setSectionResizeMode(column, mode);
    };
    fit(TaxonTableModel::Recorded, QHeaderView::Stretch);
    fit(TaxonTableModel::ToUse, QHeaderView::Stretch);
    fit(TaxonTableModel::Category, QHeaderView::ResizeToContents);
    fit(TaxonTableModel::Code, QHeaderView::ResizeToContents);
    return table;
}

// The beginning of a word is enough.
std::string begun(const QString& typed)
{
    QString word = typed;
    const bool subgenus = word.startsWith(QLatin1Char('('));
    if (subgenus)
        word.remove(QLatin1Char('(')).remove(QLatin1Char(')'));
    if (!word.contains(QLatin1Char('*')) && !word.contains(QLatin1Char('%')))
        word += QLatin1Char('*');
    return (subgenus ? QLatin1Char('(') + word + QLatin1Char(')') : word).toStdString();
}

std::vector<std::string> begunWords(const QString& typed)
{
    std::vector<std::string> words;
    for (const QString& word : typed.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts))
        words.push_back(begun(word));
    return words;
}

std::unique_ptr<TaxonList> found(TaxonPatterns patterns)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    std::unique_ptr<TaxonList> taxa(
        Taxon::searchTaxa(patterns.category.data(), patterns.genus.data(), patterns.subgenus.data(),
            patterns.species.data(), patterns.subspecies.data(), 1, 0, 0));
    QApplication::restoreOverrideCursor();
    return taxa;
}

} // namespace

TaxaPage::TaxaPage(QWidget* parent)
    : Page(parent)
    , field_(makeField(this))
    , schemes_(makeSchemes(this))
    , count_(new QLabel(this))
    , table_(makeTable(this, &taxa_))
    , panel_(new TaxonPanel(this))
{
    count_->setObjectName(QStringLiteral("taxonCount"));
    panel_->setMinimumWidth(kPanelLetters * fontMetrics().averageCharWidth());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(beside(makeSearch(), panel_, kTableWidth));
    pause_.setSingleShot(true);
    pause_.setInterval(kPause);
    connect(&pause_, &QTimer::timeout, this, &TaxaPage::search);
    connect(field_, &QLineEdit::textChanged, &pause_, qOverload<>(&QTimer::start));
    connect(field_, &QLineEdit::returnPressed, this, &TaxaPage::enterTable);
    connect(schemes_, &QComboBox::currentIndexChanged, this, &TaxaPage::chooseScheme);
    connect(
        table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &TaxaPage::choose);
    search();
}

void TaxaPage::read()
{
    std::string error;
    const auto schemes = synonymySchemes(&error);
    if (!schemes) {
        reportError(error);
        return;
    }
    {
        const QSignalBlocker quiet(schemes_);
        const long before = scheme();
        schemes_->clear();
        schemes_->addItem(tr("any scheme"), QVariant::fromValue(0L));
        for (const SynonymyScheme& each : *schemes)
            schemes_->addItem(QString::fromStdString(each.name), QVariant::fromValue(each.id));
        schemes_->setCurrentIndex(std::max(0, schemes_->findData(QVariant::fromValue(before))));
    }
    search();
}

void TaxaPage::startSearch()
{
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

QWidget& TaxaPage::firstPlace() const { return *field_; }

QList<QWidget*> TaxaPage::panes() const { return {field_, table_, panel_}; }

QWidget* TaxaPage::makeSearch()
{
    auto* label = new QLabel(tr("Names to &use by"), this);
    label->setBuddy(schemes_);
    auto* line = new QHBoxLayout;
    line->addWidget(field_, 1);
    line->addWidget(label);
    line->addWidget(schemes_);
    auto* pane = new QWidget(this);
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins({});
    layout->addLayout(line);
    layout->addWidget(table_, 1);
    layout->addWidget(count_);
    connect(new QShortcut(QKeySequence(Qt::Key_Down), field_, nullptr, nullptr, Qt::WidgetShortcut),
        &QShortcut::activated, this, &TaxaPage::enterTable);
    return pane;
}

void TaxaPage::search()
{
    pause_.stop();
    const auto patterns = taxonPatterns(begunWords(field_->text()), "");
    const bool asked = patterns && !field_->text().trimmed().isEmpty();
    panel_->showTaxon(nullptr); // it shows a taxon of the list that goes
    taxa_.show(asked ? found(*patterns) : std::make_unique<TaxonList>(), scheme());
    const int count = taxa_.rowCount();
    if (!patterns)
        count_->setText(tr("A name has a genus, a species and a subspecies"));
    else if (!asked)
        count_->setText(tr("Type the beginning of a genus, and of a species behind it"));
    else
        count_->setText(count == 0 ? tr("No such name") : tr("Names: %1").arg(count));
    const int row = std::max(0, taxa_.rowOf(chosen_));
    table_->setCurrentIndex(taxa_.index(row, TaxonTableModel::Recorded));
}

void TaxaPage::enterTable()
{
    if (pause_.isActive())
        search();
    if (taxa_.rowCount() > 0)
        table_->setFocus(Qt::ShortcutFocusReason);
}

void TaxaPage::choose(const QModelIndex& row)
{
    if (!row.isValid())
        return;
    Taxon& taxon = taxa_.taxon(row.row());
    chosen_ = taxon.spec_id();
    panel_->showTaxon(&taxon);
}

void TaxaPage::chooseScheme()
{
    taxa_.setScheme(scheme());
    choose(table_->currentIndex());
}

long TaxaPage::scheme() const { return schemes_->currentData().value<long>(); }
