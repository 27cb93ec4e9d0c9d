#include "formats/ZoneKeys.h"

#include <gtest/gtest.h>

namespace zg {

constexpr std::int64_t hour = 3600;

TEST(ZoneKeys, ZonesOnBothSidesAndOfHalfHours) {
    EXPECT_EQ(zoneOffset("UTC-0500"), -5 * hour);
    EXPECT_EQ(zoneOffset(" utc+0530 "), 5 * hour + 1800);
    EXPECT_EQ(zoneOffset("UTC-0330"), -3 * hour - 1800);
    for (const char* const key :
         {"", "UTC", "EST", "UTC0500", "UTC-5:00", "UTC-0560", "UTC+1500", "UTC-05000"})
        EXPECT_FALSE(zoneOffset(key)) << key;
}

TEST(ZoneKeys, TheKeyOfAZone) {
    for (const char* const key : {"UTC+0000", "UTC-0330", "UTC+0545", "UTC+1400"})
        EXPECT_EQ(zoneText(*zoneOffset(key)), key);
}

}  // namespace zg
