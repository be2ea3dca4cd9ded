// app/window/WellReader.cpp
#include "app/window/WellReader.h"

#include "app/shell/CollectedReports.h"
#include "app/shell/DepthModel.h"
#include "app/shell/WellLoading.h"

WellReader::WellReader(QObject* parent)
    : QObject(parent)
{
    timer_.setSingleShot(true); // a message box within a step runs the event loop
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &WellReader::step);
}

WellReader::~WellReader() = default;

void WellReader::start(LoadedWell& loaded)
{
    stop();
    loaded_ = &loaded;
    {
        CollectedReports reports;
        loading_ = std::make_unique<WellLoading>(loaded);
        emit told(tr("what there is to load"), reports.take());
    }
    step();
}

void WellReader::stop()
{
    timer_.stop();
    loading_.reset();
    loaded_ = nullptr;
}

void WellReader::cancel()
{
    if (!isReading())
        return;
    const QString left = nextName();
    stop();
    emit ended(left);
}

void WellReader::step()
{
    if (loading_->finished()) {
        readSurvey();
        stop();
        emit ended({});
        return;
    }
    const LoadStep done = loading_->next();
    timer_.start();
    emit told(QString::fromStdString(done.name), done.reports);
    constexpr int kSurvey = 1;
    emit progressed(static_cast<int>(loading_->done()),
        static_cast<int>(loading_->count()) + kSurvey, nextName());
}

// Not one of the loaders, but read after them all the same: the well keeps it.
void WellReader::readSurvey()
{
    CollectedReports reports;
    depthModel(loaded_->well);
    emit told(nextName(), reports.take());
}

QString WellReader::nextName() const
{
    return loading_->finished() ? tr("deviation survey")
                                : QString::fromStdString(loading_->nextName());
}
