// app/window/OccurrencePane.h
#pragma once

#include "app/window/OccurrenceModel.h"
#include "app/window/WellView.h"

#include <memory>

class FrozenTable;
class QCheckBox;
class QComboBox;
class QLabel;
struct FoundTaxa;

/// What the samples of the chosen well hold, for one discipline: the choice of discipline and
/// analyst, and below it the matrix of samples and taxa. It is made when somebody looks at it.
class OccurrencePane : public WellView {
    Q_OBJECT

public:
    explicit OccurrencePane(QWidget* parent = nullptr);
    ~OccurrencePane() override;

    void showWell(Well* well, char units) override;
    void showMore() override;
    void setUnits(char units) override;
    QWidget& place() const override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// How much of a discipline is loaded.
    struct Extent {
        int loaded = 0;
        std::size_t samples = 0;
        std::size_t records = 0;
        std::size_t finds = 0;
        bool operator==(const Extent&) const = default;
    };

    QWidget* makeChoice();
    Extent extent(char disc) const;
    void update();
    void listDisciplines();
    void listAnalysts();
    void chooseDiscipline();
    void readTaxa();
    void showTable();
    void showNothing();
    void fit();
    QString countText() const;
    char disc() const;

    Well* well_ = nullptr;
    char units_ = 'M';
    bool stale_ = true; // the well has changed since the matrix was made
    Extent extent_;
    std::unique_ptr<FoundTaxa> found_; // the model points into it
    OccurrenceModel model_;

    QComboBox* disciplines_;
    QComboBox* analysts_;
    QCheckBox* allSamples_;
    QLabel* count_;
    FrozenTable* table_;
};
