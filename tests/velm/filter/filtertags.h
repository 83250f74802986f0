#pragma once

#include "fakeproperties.h"

#include "support/rowmirror.h"
#include "support/signallog.h"
#include "velm/filter/filtertagsconjunctionmodel.h"
#include "velm/filter/filtertagsmodel.h"

namespace velmtest {
/// Three texts.
inline const FakeProperties& threeTexts()
{
    static const FakeProperties result = {
        {"p", "string", {}, {}, {}, {}}, {"q", "string", {}, {}, {}, {}}, {"r", "string", {}, {}, {}, {}}};
    return result;
}

/// Tags of the first property, as in "[a b] []", a bracket for each conjunction.
inline velm::FilterData filterOf(const QString& form)
{
    velm::FilterData result;
    for (const QString& conjunction : form.split(']', Qt::SkipEmptyParts)) {
        result.emplace_back();
        for (const QString& value : QString(conjunction).remove('[').split(' ', Qt::SkipEmptyParts))
            result.back().push_back({0, 0, value});
    }
    return result;
}

/// A filter, what it tells, and a mirror of its rows.
struct TagsFixture
{
    velm::FilterTagsModel model{threeTexts(), nullptr};
    RowMirror mirror{model};
    SignalLog log{model};

    explicit TagsFixture(const QString& form = "[]")
    {
        model.setFilter(filterOf(form));
        log.take();
    }

    velm::FilterTagsConjunctionModel* conjunction(int row) const
    {
        return model.index(row, 0).data(0).value<velm::FilterTagsConjunctionModel*>();
    }
};
} // namespace velmtest
