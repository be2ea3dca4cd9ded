// app/window/ReportStrip.h
#pragma once

#include <QWidget>

#include <string>
#include <vector>

class QPlainTextEdit;
class QToolButton;

/// A line at the foot of a well that says how much was refused while the well was loaded, and opens
/// into the texts themselves. Out of sight while there is nothing to say.
class ReportStrip : public QWidget {
    Q_OBJECT

public:
    explicit ReportStrip(QWidget* parent = nullptr);

    /// For another well.
    void clear();
    /// What was told while something was read.
    void add(const QString& reading, const std::vector<std::string>& reports);
    /// The user left off before that was read.
    void addLeftOff(const QString& reading);
    /// The line, as far as it is not cut.
    const QString& summary() const { return summary_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void say(const QString& line);
    void update();
    void fitSummary();

    int refused_ = 0;
    QString first_;   ///< of the reports
    QString leftOff_; ///< a sentence
    QString summary_;
    QToolButton* opener_;
    QPlainTextEdit* texts_;
};
