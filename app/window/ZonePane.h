// app/window/ZonePane.h
#pragma once

#include "app/window/RecordPane.h"

class QComboBox;

/// The zones of the chosen well, of the type and the rank that are chosen above them.
class ZonePane : public RecordPane {
    Q_OBJECT

public:
    ZonePane();

protected:
    std::vector<RecordRow> readRows(Well& well, char units, long interp_id) override;

private:
    void listRanks();

    QComboBox* types_;
    QComboBox* ranks_;
};
