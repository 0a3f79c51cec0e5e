#include "app/chart_driver.h"

#include <gmock/gmock.h>

#include "support.h"

namespace tolvanis {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

TEST(ChartDriver, AFaultIsToldAndLeavesTheChartBefore) {
    Options options;
    CurrentChart chart;
    DataBuffer buffer;
    RecordedMessages messages;
    const auto compute = [&](const std::string& record) {
        return ComputeChart(EntryOf(record), {}, 1, options, chart, buffer, messages);
    };
    EXPECT_TRUE(compute(kAnnSmith).computed);
    EXPECT_THAT(messages.told, IsEmpty());
    EXPECT_GT(buffer.BufferLineCount(), 50U);
    EXPECT_EQ(chart.aspects.list().size(), FindAspects(chart.positions, options).list().size());

    const auto before = buffer.ListingLines();
    const ComputeOutcome refused = compute("Bob,1 Jan 1950,1.00,A,5,073.59,67.00");
    EXPECT_FALSE(refused.computed);
    EXPECT_EQ(refused.toCorrect, EntryField::LatDeg);
    ASSERT_EQ(messages.told.size(), 1U);
    EXPECT_THAT(messages.told[0].text, HasSubstr("Your latitude is too high."));
    EXPECT_EQ(chart.natal.Name, "Ann Smith");
    EXPECT_EQ(buffer.ListingLines(), before);
}

}  // namespace
}  // namespace tolvanis
