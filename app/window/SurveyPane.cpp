// app/window/SurveyPane.cpp
#include "app/window/SurveyPane.h"

#include "app/shell/DepthModel.h"
#include "app/shell/TypedDepth.h"
#include "app/window/DepthUnits.h"
#include "app/window/WellTables.h"
#include "db/Units.h"
#include "util/TextUtil.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr TableWords kWords{
    "surveyTable", "Deviation survey of the well", "No deviation survey", "Points: %1"};
constexpr int kLeastPoints = 2; // for a conversion
constexpr int kFieldEms = 10;   // width of a field

} // namespace

SurveyPane::SurveyPane()
    : TablePane(surveyTable(), kWords)
    , line_(new QHBoxLayout)
    , md_(addField(tr("Meas&ured depth"), "measuredDepth", DepthAxis::Measured))
    , tvd_(addField(tr("&True vertical depth"), "verticalDepth", DepthAxis::Vertical))
    , note_(new QLabel)
{
    note_->setObjectName(QStringLiteral("conversionNote"));
    line_->addWidget(note_);
    line_->addStretch();
    lines().insertLayout(0, line_);
    allow();
}

void SurveyPane::showWell(Well* well, char units)
{
    TablePane::showWell(well, units);
    well_ = well;
    units_ = units;
    question_.reset();
    allow();
}

void SurveyPane::showMore()
{
    TablePane::showMore();
    allow();
}

void SurveyPane::setUnits(char units)
{
    TablePane::setUnits(units);
    units_ = units;
    if (question_)
        field(question_->axis).setText(shown(question_->depth));
    answer();
}

QLineEdit* SurveyPane::addField(const QString& caption, const char* object, DepthAxis axis)
{
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(object));
    edit->setMaximumWidth(kFieldEms * fontMetrics().height());
    auto* label = new QLabel(caption);
    label->setBuddy(edit);
    line_->addWidget(label);
    line_->addWidget(edit);
    connect(
        edit, &QLineEdit::textEdited, this, [=, this](const QString& text) { ask(axis, text); });
    return edit;
}

void SurveyPane::ask(DepthAxis axis, const QString& text)
{
    const std::optional<float> given = typedDepth(text.toStdString());
    question_ = given ? std::optional(Question{axis, toMetres(*given, units_)}) : std::nullopt;
    if (!question_)
        field(axis == DepthAxis::Measured ? DepthAxis::Vertical : DepthAxis::Measured).clear();
    answer();
    if (!question_ && !text.trimmed().isEmpty())
        note_->setText(tr("not a number"));
}

// A conversion needs a survey, which is read last.
void SurveyPane::allow()
{
    const bool possible = survey();
    for (QLineEdit* each : {md_, tvd_}) {
        each->setEnabled(possible);
        if (!question_)
            each->clear();
    }
    answer();
}

void SurveyPane::answer()
{
    note_->setText(unitsSign(units_));
    const TVDepth* table = survey();
    if (!table) {
        note_->setText(tr("There is no survey of two points or more to convert by."));
        return;
    }
    if (!question_)
        return;
    const auto [axis, depth] = *question_;
    const bool measured = axis == DepthAxis::Measured;
    field(measured ? DepthAxis::Vertical : DepthAxis::Measured)
        .setText(shown(measured ? table->MDtoTVD(depth) : table->TVDtoMD(depth)));
    if (isBeyondSurvey(*table, depth, axis))
        note_->setText(
            tr("%1 \u2013 beyond the survey: the value of its last point").arg(unitsSign(units_)));
}

/// Null: none to convert by.
const TVDepth* SurveyPane::survey() const
{
    const bool possible = well_ && well_->tvd && well_->tvd->count >= kLeastPoints;
    return possible ? well_->tvd.get() : nullptr;
}

QLineEdit& SurveyPane::field(DepthAxis axis) const
{
    return axis == DepthAxis::Measured ? *md_ : *tvd_;
}

QString SurveyPane::shown(float metres) const
{
    return QString::fromStdString(fixedString(fromMetres(metres, units_), 2));
}
