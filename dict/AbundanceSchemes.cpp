// dict/AbundanceSchemes.cpp
#include "dict/AbundanceSchemes.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/ItemList.h"
#include "db/Literals.h"

#include <memory>
#include <vector>

namespace {

/// One scheme at a time, read again only when another one is asked for.
class SchemeCache {
public:
    const Abns& scheme(long scheme_id)
    {
        if (scheme_id != requested_) {
            requested_ = scheme_id;
            scheme_.loadById(scheme_id);
        }
        return scheme_;
    }

private:
    Abns scheme_;
    long requested_ = 0;
};

} // namespace

Abns* schemeById(long scheme_id)
{
    static std::vector<std::unique_ptr<Abns>> registry;
    for (const auto& scheme : registry) {
        if (scheme->scheme_id == scheme_id)
            return scheme.get();
    }
    auto scheme = std::make_unique<Abns>();
    scheme->loadById(scheme_id);
    return registry.emplace_back(std::move(scheme)).get();
}

const char* cachedAbrForCount(long occurrences, long scheme_id)
{
    static SchemeCache cache;
    return cache.scheme(scheme_id).abrForCount(occurrences);
}

long cachedValueForAbr(const char* abr, long scheme_id)
{
    static SchemeCache cache;
    return cache.scheme(scheme_id).valueForAbr(abr);
}

ItemList* allSchemes()
{
    auto schemes = std::make_unique<ItemList>(1);
    const std::string sql =
        "SELECT scheme_id, name FROM " + sql::table("ABNSCHME") + " ORDER BY name";
    Cursor row(sql);
    if (!row)
        reportDbFailureAs("Error in: " + sql, Fatal::Yes);
    while (row && row.next()) {
        const int id = static_cast<int>(row.integer(1));
        schemes->addNew(id, row.text(2).c_str());
    }
    return schemes.release();
}
