// When edits count as pending.
#include "pendingchanges.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

Parameters valuesOf(double kvp, double cvl)
{
    Parameters list;
    SingleParam p;
    p.name = "KVP";
    p.value = kvp;
    list.addParameter(p);
    p.name = "CVL";
    p.value = cvl;
    list.addParameter(p);
    return list;
}

} // namespace

TEST(PendingChanges, EditIsPendingUntilUndoneOrSettled)
{
    PendingChanges changes;
    EXPECT_FALSE(changes.isPending(valuesOf(1, 2))); // nothing was ever settled: the list is only just there
    changes.settle(valuesOf(1, 2));
    EXPECT_TRUE(changes.isPending(valuesOf(1, 3)));
    EXPECT_FALSE(changes.isPending(valuesOf(1, 2)));
    changes.settle(valuesOf(1, 3));
    EXPECT_FALSE(changes.isPending(valuesOf(1, 3)));
    EXPECT_TRUE(changes.isPending(valuesOf(1, 2)));
}

TEST(PendingChanges, LoadedFileIsPendingEvenWithoutADifference)
{
    PendingChanges changes;
    changes.settle(valuesOf(1, 2));
    changes.fileLoaded();
    EXPECT_TRUE(changes.isPending(valuesOf(1, 2)));
    changes.settle(valuesOf(1, 2));
    EXPECT_FALSE(changes.isPending(valuesOf(1, 2)));
}

TEST(PendingChanges, ValueThatIsNoNumberIsNotAnEditForEver)
{
    PendingChanges changes;
    changes.settle(valuesOf(NAN, 2));
    EXPECT_FALSE(changes.isPending(valuesOf(NAN, 2)));
    EXPECT_TRUE(changes.isPending(valuesOf(1, 2)));
}
