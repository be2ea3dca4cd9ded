// app/window/SurveyPane.h
#pragma once

#include "app/window/TablePane.h"

#include <optional>

class QHBoxLayout;
class QLineEdit;
class TVDepth;
enum class DepthAxis;

/// The deviation survey of the chosen well, with two fields that give the vertical depth of a
/// measured one and the other way round.
class SurveyPane : public TablePane {
    Q_OBJECT

public:
    SurveyPane();

    void showWell(Well* well, char units) override;
    void showMore() override;
    void setUnits(char units) override;

private:
    /// What the user asked for; metres, so that it stays when the units change.
    struct Question {
        DepthAxis axis;
        float depth;
    };

    QLineEdit* addField(const QString& caption, const char* object, DepthAxis axis);
    void ask(DepthAxis axis, const QString& text);
    void allow();
    void answer();
    const TVDepth* survey() const;
    QLineEdit& field(DepthAxis axis) const;
    QString shown(float metres) const;

    Well* well_ = nullptr;
    char units_ = 'M';
    std::optional<Question> question_;
    QHBoxLayout* line_;
    QLineEdit* md_;
    QLineEdit* tvd_;
    QLabel* note_;
};
