#include "app/chart_driver.h"

#include <gmock/gmock.h>

#include "support.h"

namespace tolvanis {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

TEST(ChartDriver, FaultsAreToldAndNameTheBoxToCorrect) {
    RecordedMessages messages;
    const auto compute = [&](const std::string& record) {
        return ComputeChart(EntryOf(record), {}, 1, Options{}, messages);
    };
    const ComputeOutcome computed = compute(kAnnSmith);
    ASSERT_TRUE(computed.chart);
    EXPECT_THAT(messages.told, IsEmpty());
    DataBuffer buffer;
    WriteChart(buffer, *computed.chart, Options{});
    EXPECT_GT(buffer.BufferLineCount(), 50U);

    const ComputeOutcome refused = compute("Bob,1 Jan 1950,1.00,A,5,073.59,67.00");
    EXPECT_FALSE(refused.chart);
    EXPECT_EQ(refused.toCorrect, EntryField::LatDeg);
    ASSERT_EQ(messages.told.size(), 1U);
    EXPECT_THAT(messages.told[0].text, HasSubstr("Your latitude is too high."));
}

}  // namespace
}  // namespace tolvanis
