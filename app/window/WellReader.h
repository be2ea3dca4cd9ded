// app/window/WellReader.h
#pragma once

#include <QObject>
#include <QTimer>

#include <memory>
#include <string>
#include <vector>

class WellLoading;
struct LoadedWell;

/// Loads a well from the event loop: its samples at once, the rest a step at a time, so that the
/// window paints and listens in between. It leaves off between two steps only, when no statement is
/// open. A fatal failure ends the process, as everywhere.
class WellReader : public QObject {
    Q_OBJECT

public:
    explicit WellReader(QObject* parent = nullptr);
    ~WellReader() override;

    /// Leaves off what is being loaded, then begins with this well, which must live until all is
    /// loaded or `stop` is called.
    void start(LoadedWell& loaded);
    /// Leaves off, which is not told: the well may go.
    void stop();
    bool isReading() const { return loaded_ != nullptr; }

public slots:
    /// Leaves off as the user wishes: what is loaded stays.
    void cancel();

signals:
    /// `done` of `count` steps; `next` is what the one to come reads.
    void progressed(int done, int count, const QString& next);
    /// What a step told and went on.
    void told(const QString& reading, const std::vector<std::string>& reports);
    /// No step is to come. `leftOff` is the first that was not carried out; empty when all were.
    void ended(const QString& leftOff);

private:
    void step();
    void readSurvey();
    QString nextName() const;

    LoadedWell* loaded_ = nullptr; ///< null: nothing is being loaded
    std::unique_ptr<WellLoading> loading_;
    QTimer timer_;
};
