// well/LoadFss.cpp
#include "well/Well.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "taxonomy/Disciplines.h"
#include "taxonomy/TextArgument.h"
#include "well/Sample.h"

#include <memory>

namespace {

std::string occurrencesSql(long well_id, char disc, std::string_view analyst)
{
    std::string sql = "SELECT samp_id,u.abr,h.analy_no,spec_id,status,ident_type,abund,caved,"
                      "marker,medium,coarse,fine,spec_type_id,preserv,colour,t.comments FROM "
        + sql::table("TAXONOCC") + " t," + sql::table("ANALY_HDR") + " h," + sql::table("USERDEF")
        + " u WHERE t.well_id=" + sql::integer(well_id) + " AND t.well_id=h.well_id AND h.disc_id="
        + sql::quoteChar(disc) + " AND h.analy_id=t.analy_id ";
    if (!analyst.empty())
        sql += " AND u.abr=" + sql::quote(analyst);
    return sql + " AND u.user_id=h.analyst ORDER BY samp_id, spec_id";
}

/// The occurrence of a row, from column 4 on.
std::unique_ptr<Fssabnd> readOccurrence(long samp_id, const Cursor& row)
{
    const long spec_id = row.integer(4);
    const char status = row.letter(5), ident_type = row.letter(6);
    const FixedText<2> abund = row.view(7);
    const char caved = row.letter(8);
    const long marker = row.letter(9) == 'Y';
    const long medium = row.integer(10);
    auto o = std::make_unique<Fssabnd>(
        samp_id, spec_id, status, ident_type, abund, medium, caved, marker, 'C', 'A');
    const long coarse = row.integer(11);
    o->SetCounts(coarse, row.integer(12));
    o->preserv = row.view(14);
    o->colour = row.view(15);
    o->comments = row.view(16);
    return o;
}

/// Puts the rows, which come by sample, into the records that they belong to. Most rows are of the
/// sample and analyst of the row before, for which nothing is looked up again.
class OccurrenceLoader {
public:
    OccurrenceLoader(Well& well, char disc)
        : well_(well)
        , disc_(disc)
    {
    }

    void take(const Cursor& row);
    /// After the last row.
    void finish() { completePrevious(); }

private:
    /// Which sample and analysis a row is of.
    struct Owner {
        long samp_id = 0;
        long analy_no = 0;
        std::string abr;
        bool is(long sample, std::string_view user, long number) const
        {
            return samp_id == sample && analy_no == number && abr == user;
        }
    };

    void find();
    Sample* readSample(long samp_id);
    Smpdtl* recordFor(Sample& s) { return s.FindDetails(disc_, key_); }
    Smpdtl* addRecord(Sample& s) { return s.AddDetails(disc_, key_, "", "", "", 'N'); }
    void attach(std::unique_ptr<Fssabnd> o);
    void completePrevious();

    Well& well_;
    const char disc_;
    Owner owner_;
    AnalystKey key_;
    Sample* sample_ = nullptr;   ///< of the row
    Smpdtl* record_ = nullptr;   ///< of the row
    Sample* previous_ = nullptr; ///< of the row before, skipped rows left out
};

void OccurrenceLoader::take(const Cursor& row)
{
    const long samp_id = row.integer(1);
    const std::string_view abr = row.view(2); // until the next text is read
    const long analy_no = row.integer(3);
    if (!sample_ || !owner_.is(samp_id, abr, analy_no)) {
        owner_ = {samp_id, analy_no, std::string(abr)};
        key_ = analystKey(abr, analy_no);
        find();
    }
    if (!sample_)
        return;
    attach(readOccurrence(owner_.samp_id, row));
    if (previous_ != sample_)
        completePrevious();
    previous_ = sample_;
}

void OccurrenceLoader::find()
{
    sample_ = well_.samples.FindById(owner_.samp_id);
    if (!sample_)
        sample_ = readSample(owner_.samp_id);
    record_ = sample_ ? recordFor(*sample_) : nullptr;
}

/// Reads a sample that the list lacks, with its details, into the list; null without such a sample.
Sample* OccurrenceLoader::readSample(long samp_id)
{
    auto s = std::make_unique<Sample>(well_.well_id, samp_id);
    if (s->samp_id == 0) {
        reportError("sample id not in database in well.loadFss");
        return nullptr;
    }
    s->LoadDetails(disc_, key_);
    if (!recordFor(*s)) {
        addRecord(*s);
        reportError(std::string("Occurrence record found with no sample details at: ")
            + s->DepthLabelInReports());
    }
    well_.AddSample(s.get());
    return s.release();
}

void OccurrenceLoader::attach(std::unique_ptr<Fssabnd> o)
{
    if (record_ && record_->occComplete)
        return;
    if (record_) {
        record_->occurrences.push(o.release());
        sample_->occSaved[discIndex(disc_)] = 0;
        return;
    }
    sample_->AddOccurrence(o.release(), disc_, key_, 1); // refuses: there are no details
    record_ = addRecord(*sample_);
}

void OccurrenceLoader::completePrevious()
{
    if (Smpdtl* record = previous_ ? recordFor(*previous_) : nullptr)
        record->occComplete = 1;
}

} // namespace

void Well::loadFss(char disc, const char* analyst, int reload)
{
    int& loaded = occurrencesLoaded[discIndex(disc)];
    if (loaded && !reload)
        return;
    Cursor rows(occurrencesSql(well_id, disc, orEmpty(analyst)));
    if (!rows) {
        reportDbFailureAs("Error selecting fss list", Fatal::Yes);
        return;
    }
    OccurrenceLoader loader(*this, disc);
    while (rows.next())
        loader.take(rows);
    loader.finish();
    loaded = 1;
}
