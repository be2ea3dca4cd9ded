// app/import/AnalystsLoader.cpp
#include "app/import/AnalysisShapes.h"
#include "app/import/Cells.h"
#include "app/import/ImportContext.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"

namespace {

class AnalystsLoader : public RowLoader {
public:
    explicit AnalystsLoader(ImportContext& context)
        : users_(context.analyses.users)
    {
    }

    bool check(CellReader& cells) override
    {
        if (!users_.load()) {
            error_ = users_.error();
            return false;
        }
        std::string abr;
        if (cells.key(analysts::Analyst, &abr) != Cell::Good)
            return true;
        judge(cells, abr);
        if (cells.report().refused())
            return true;
        user_ = users_.find(abr);
        if (!user_)
            user_ = users_.add(abr);
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = users_.put(*user_);
        if (outcome == Outcome::Failed)
            error_ = users_.error();
        return outcome;
    }

private:
    void judge(CellReader& cells, const std::string& abr)
    {
        if (abr.size() > kLongestUser)
            cells.refuse(analysts::Analyst,
                "longer than " + std::to_string(kLongestUser) + " bytes; give a shorter one");
        else if (abr.find('/') != std::string::npos)
            cells.refuse(analysts::Analyst, "a slash parts an analyst from a number");
        else if (const RowPlace* first = rows_.before(abr, {&cells.file(), cells.line()}))
            cells.refuse(analysts::Analyst,
                "this analyst is in " + first->seenFrom(cells.file()) + " already");
    }

    UserWriter& users_;
    FirstRows rows_;
    User* user_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeAnalystsLoader(ImportContext& context)
{
    return std::make_unique<AnalystsLoader>(context);
}
