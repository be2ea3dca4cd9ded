// dict/EVdict.h
#pragma once

#include "util/Date.h"
#include "util/FixedText.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

class Taxon;
enum class FirstRow;

/// One entry of the event dictionary: a named horizon, such as the top of a taxon's range, that
/// wells and composite standards place.
///
/// No operation adds an entry to the database; what is not there is answered with a report. Failed
/// statements are reported and end the process; when a lost connection was restored, the operation
/// leaves what it had so far. Names are cut to 100 bytes before they are looked up or written.
/// Null texts count as empty.
class EVdict {
public:
    /// Reads the entry. Without such a row it is cleared but for its identifier.
    explicit EVdict(long ev_id);
    /// The entry of a name, of whatever type; `ev_id` 0 when there is none.
    explicit EVdict(const char* name);
    /// The entry of a name and a type (a blank: any), whose generate flag becomes `generate`. One
    /// that is not there is reported and has `ev_id` 0. The taxon (null: none) stays the caller's
    /// and must live as long as this entry.
    EVdict(const char* name, Taxon* taxon, char ev_type, char generate);
    /// Renames the entry `oldName`, whatever its type, and gives it that type, the species of
    /// `taxon` (null: stays) and that generate flag. `ev_id` 0, and nothing written, without such
    /// an entry. The taxon stays the caller's and must live as long as this entry.
    EVdict(const char* oldName, const char* newName, Taxon* taxon, char ev_type, char generate);
    /// The event of a taxon: by species, type and flag, or else by species, type and the taxon's
    /// display name. One that is not there is reported and has `ev_id` 0.
    EVdict(long spec_id, char ev_type, char generate);
    ~EVdict();
    EVdict(const EVdict&) = delete;
    EVdict& operator=(const EVdict&) = delete;

    /// Reads everything but the name from the first entry of this name and, unless that is a
    /// blank, this type. `ev_id` 0 when there is none.
    void findByName();
    /// Sets the flag here and in the database. 'Y' is refused while another paired event of the
    /// species generates: 1 then, and after a failed query for one, else 0.
    int setGenerate(char flag);
    void rename(const char* newName);
    /// Deletes the entry and its places in all wells from the database.
    void deleteEvent();

    /// Room for `describe` and `taxonText`, terminator included.
    static constexpr std::size_t kTextRoom = 400;
    /// "name:   taxon  (paired)", or "(single)", into `out`.
    void describe(char* out);
    /// The display name of the taxon, which is read and kept when it is not there yet; "(No taxon)"
    /// without a species.
    void taxonText(char* out);
    /// The category of the species (a blank when it has none), "EV" without a species; read once.
    /// Lives as long as the entry.
    const char* categoryText();

    long ev_id() const { return ev_id_; } ///< 0: not in the dictionary
    const char* name() const { return name_; }
    std::string_view nameView() const { return name_.view(); }

    long spec_id = 0; ///< 0: no taxon
    char ev_type = ' ';
    char generate = 'N'; ///< 'Y' or 'N'
    FixedText<5> creator;
    Date created = Date::Today();

    /// Moves on whenever some entry gets another name or identifier, by which lists of entries and
    /// of events tell that what they know of their order is stale.
    static unsigned long changes() { return changes_; }

private:
    void takeTaxon(Taxon* taxon);
    FirstRow readByName();
    FirstRow readAsGenerated();
    FirstRow readAsNamed();
    bool rewrite(const Taxon* taxon, char type);
    std::string nameOfTaxon();

    long ev_id_ = 0;
    FixedText<100> name_;
    Taxon* taxon_ = nullptr;
    std::unique_ptr<Taxon> ownTaxon_; ///< when read here
    FixedText<59> category_;

    static inline unsigned long changes_ = 0;
};
