// app/shell/LithologyEditing.h
#pragma once

#include "app/shell/StoredLithology.h"
#include "interp/IGDList.h"
#include "interp/LithDictionary.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class Well;

/// What a user says of a rock interval, or of a qualifier.
struct LithologyInput {
    char kind = LithDicTerm::kMainLithology; ///< that of a rock interval, or 'A', 'Q', 'S'
    std::string top;                         ///< as typed, in the units on the screen
    std::string base;
    long lith_id = 0; ///< 0: none is chosen
};

enum class LithologyField { Top, Base, Rock, All };

/// What is wrong with what a user said, in words.
struct LithologyFault {
    LithologyField field;
    std::string text;
};

struct LithologyEdit {
    const IGDBase* record = nullptr; ///< that of the list; null when there are faults
    std::vector<LithologyFault> faults;
};

/// The lithology of a well while a user edits it: rock intervals and what is said of the rocks,
/// both as lists of the core, until they are saved. Depths go in and out as the screen shows them,
/// in units of its choice ('F' or 'M'), those of a section upwards. The lists themselves are in
/// metres, since feet would shift what nobody edited; single precision is all that they keep.
///
/// Boundaries have no qualities here: the database keeps none of rock intervals.
class LithologyEditing {
public:
    /// Reads both lists; a failure is reported.
    explicit LithologyEditing(Well& well);
    ~LithologyEditing();

    const IGDList& rocks() const { return rocks_.list; }
    const IGDList& qualifiers() const { return qualifiers_.list; }
    /// Whether there are edits that are not saved.
    bool isChanged() const { return rocks_.list.changed() || qualifiers_.list.changed(); }

    /// The terms that a record of that kind may have. Read once; a failure ends the process.
    std::vector<const LithDicTerm*> termsOf(char kind);
    /// What a record says, as a user would type it.
    LithologyInput inputOf(const IGDBase& record, char units) const;
    /// The qualifiers at the depths of a record, each in words.
    std::vector<std::string> saidOf(const IGDBase& record, char units) const;

    /// Puts a record in. A depth that the screen shows like a boundary that is there is meant as
    /// that one. Rock intervals must not overlap, as the core understands it; qualifiers may.
    LithologyEdit add(const LithologyInput& input, char units);
    /// Replaces a record by another one of its kind, which keeps its place across the column.
    LithologyEdit change(const IGDBase& record, const LithologyInput& input, char units);
    /// Takes a record out and destroys it.
    void remove(const IGDBase& record);

    /// Stores the edits, each table in one transaction. All cursors must be closed. Empty when all
    /// are stored; else why not, and what is not stored is still here: saving would lose what the
    /// list has not got, somebody else was faster, or a statement failed.
    std::string save(char units);

private:
    struct Edited {
        Edited(Well& well, int igd_type, StoredLithologies (*rows)(long well_id));

        bool isWhole() const;
        bool contains(const IGDBase& record) const { return list.contains(&record); }

        StoredLithologies (*read)(long well_id);
        StoredLithologies before; // as the database had them when the list was read
        IGDList list;
        int count; // when it was read
    };
    struct Depths {
        float top;
        float base;
    };

    Edited& editedOf(char kind);
    LithDictionary& dictionary();
    void noteTexts();

    LithologyEdit put(const LithologyInput& input, const IGDBase* replaced, char units);
    std::unique_ptr<IGDBase> makeRecord(
        const LithologyInput& input, const Depths& depths, const IGDBase* replaced);
    Depths readDepths(const LithologyInput& input, const IGDBase* replaced, char units,
        std::vector<LithologyFault>& faults) const;
    float meantDepth(float typed, const IGDBase* replaced, char units) const;
    std::string conflictOf(IGDBase& record, const IGDBase* replaced, char units) const;

    std::string refusal(char units) const;
    std::string refusalOfRocks(char units) const;
    std::string refusalOfQualifiers(char units) const;
    std::string refusalOf(const Edited& edited) const;
    std::string store(Edited& edited) const;
    static bool isCommitted(Edited& edited);

    std::string shownDepth(float held, char units) const;
    std::string shownSpan(float top, float base, char units) const;

    int negate_;
    Edited rocks_;
    Edited qualifiers_;
    std::map<const IGDBase*, std::string> texts_; // stored with qualifiers; no list saves them
    std::unique_ptr<LithDictionary> dictionary_;  // null until it is asked for
};

/// The kind of a record of either list, as inputs say it.
char lithologyKind(const IGDBase& record);
/// "rock", "accessory", "qualifier", "stringer", else "text".
std::string_view lithologyKindName(char kind);
