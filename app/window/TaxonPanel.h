// app/window/TaxonPanel.h
#pragma once

#include "app/window/FieldPanel.h"
#include "taxonomy/TaxonSlots.h"

#include <array>

class QGridLayout;
class Taxon;

/// The chosen taxon: its name as a title, the fourteen slots of the name, and what the dictionary
/// says about it.
class TaxonPanel : public FieldPanel {
    Q_OBJECT

public:
    explicit TaxonPanel(QWidget* parent = nullptr);

    /// Null: nothing. Reads notes and references of the taxon.
    void showTaxon(Taxon* taxon);

private:
    void makeParts();
    void addSlot(int number, int row, int column, int columns);
    void addField(int number);
    QLabel* addLine(const QString& caption);
    HeaderField showSlot(const Taxon& taxon, int number);

    QGridLayout* grid_;
    QLabel* title_;
    std::array<QLabel*, slot::count> slots_; // by slot number
    std::vector<QLabel*> further_;
};
