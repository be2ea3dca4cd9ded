// tests/app/import/dictionary/DictionaryRun.h
#pragma once

#include "app/import/TaxonName.h"
#include "db/Session.h"
#include "store/Value.h"
#include "tests/app/ImportRun.h"

#include <string>
#include <utility>
#include <vector>

using Lines = std::vector<std::string>;

/// Every name as the core reads and composes it: "3 FORAM Alphina alba Gamma 1901 [notes]".
inline Lines namesOf(TestDatabase& db)
{
    Lines names;
    for (const std::string& id : db.rows("SELECT spec_id FROM SPECIES ORDER BY spec_id")) {
        Taxon taxon(std::stol(id));
        const char* notes = taxon.loadNotes();
        const std::string category = taxon.category();
        names.push_back(id + ' ' + (category.empty() ? "-" : category) + ' '
            + shownText(composedName(taxon, true)) + (notes ? " [" + shownText(notes) + ']' : ""));
    }
    return names;
}

/// The preferred names: "scheme: 1 -> 2".
inline Lines usesOf(TestDatabase& db)
{
    return db.rows("SELECT c.name || ': ' || s.spec_id || ' -> ' || s.pref FROM SYNONYMY s"
                   " LEFT JOIN SYNSCH c ON c.sch_id = s.sch_id ORDER BY s.sch_id, s.spec_id");
}

/// Every row of the dictionaries.
inline Lines dictionariesOf(TestDatabase& db)
{
    Lines all;
    for (const char* table : {"CATEGORY", "GENUS", "SPECIES", "TXNOTES", "SIPMCODE", "SYNSCH",
             "SYNONYMY", "ABNSCHME", "ABNSCHMBR"})
        for (const std::string& row :
            db.rows(std::string("SELECT * FROM ") + table + " ORDER BY 1, 2"))
            all.push_back(std::string(table) + ": " + row);
    return all;
}

/// Files by name and content.
using Files = std::vector<std::pair<const char*, std::string>>;

/// Imports the files of one folder, all of it committed.
inline ImportResult importAll(const Files& files, IssueLog& log, bool dryRun = false)
{
    const Folder folder;
    for (const auto& [name, content] : files)
        folder.write(name, content);
    return importFiles({{folder.path()}, dryRun}, log);
}
