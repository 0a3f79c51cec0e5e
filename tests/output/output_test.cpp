#include <gtest/gtest.h>

#include "output/data_buffer.h"
#include "output/zodiac_text.h"

namespace tolvanis {
namespace {

TEST(ZodiacText, Formats) {
    const struct {
        double longitude;
        std::string_view minutes, seconds;
    } cases[] = {{0, "00 ARI 00", "00 ARI 00m 00s"},
                 {359.999, "29 PIS 59", "29 PIS 59m 56s"},
                 {15.5361111111112, "15 ARI 32", "15 ARI 32m 10s"},
                 {29.992, "29 ARI 59", "29 ARI 59m 31s"},
                 {210.0, "00 SCO 00", "00 SCO 00m 00s"},
                 {37.49, "07 TAU 29", "07 TAU 29m 24s"}};
    for (const auto& c : cases) {
        EXPECT_EQ(FormatDegMin(c.longitude), c.minutes) << c.longitude;
        EXPECT_EQ(FormatDegMinSec(c.longitude), c.seconds) << c.longitude;
    }
    const struct {
        double declination;
        std::string_view text;
    } declinations[] = {
        {23.4333, "23N26"}, {-23.4333, "23S26"}, {0, "00N00"}, {-0.004, "00S00"}, {9.999, "09N59"}};
    for (const auto& c : declinations) EXPECT_EQ(FormatDeclination(c.declination), c.text) << c.declination;
}

TEST(DataBuffer, ListingsStartAfreshWhileTheBufferKeeps) {
    DataBuffer buffer;
    buffer.AppendLine("one");
    buffer.StartListing();
    buffer.AppendLine("two");
    buffer.AppendBlankLine();
    EXPECT_EQ(buffer.BufferLineCount(), 3U);
    EXPECT_EQ(buffer.ListingText("\r\n"), "two\r\n\r\n\r\n");
    buffer.ClearBufferLines();
    EXPECT_EQ(buffer.BufferLineCount(), 0U);
    EXPECT_EQ(buffer.ListingLineCount(), 2U);
    buffer.ClearDataBuffer();
    EXPECT_EQ(buffer.ListingLineCount(), 0U);
}

}  // namespace
}  // namespace tolvanis
