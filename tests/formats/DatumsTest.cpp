#include "formats/Datums.h"

#include <gtest/gtest.h>

#include "base/RunTimeError.h"
#include "tests/support/Raises.h"

namespace zg {
namespace {

DatumFile read(const std::string& rows) {
    const std::string text = "DATUMS.CSV,V1.0,2026-11-22\nnames\n" + rows;
    LineReader lines = LineReader::ofText(text);
    return readDatums(lines);
}

TEST(Datums, TheBuiltInTableIsTheDeliveredOne) {
    LineReader lines(ZG_SOURCE_DIR "/data/datums.csv");
    const DatumFile delivered = readDatums(lines);
    ASSERT_EQ(builtInDatums().rows.size(), delivered.rows.size());
    EXPECT_EQ(builtInDatums().stamp, delivered.stamp);
    for (std::size_t i = 0; i < delivered.rows.size(); ++i) {
        EXPECT_EQ(builtInDatums().rows[i].code, delivered.rows[i].code);
        EXPECT_EQ(builtInDatums().rows[i].ellipsoid, delivered.rows[i].ellipsoid);
        EXPECT_EQ(builtInDatums().rows[i].shift, delivered.rows[i].shift);
    }
}

TEST(Datums, ARowMayHaveAShift) {
    const DatumFile file = read("AFRICA,A - B,\"C, D\",E\nAFRICA,A - B,C,F,-1,0,25\nAFRICA,A - B,C,G,,,\n");
    ASSERT_EQ(file.rows.size(), 3U);
    EXPECT_EQ(file.rows[0].region, "C, D");
    EXPECT_FALSE(file.rows[0].shift);
    EXPECT_EQ(file.rows[1].shift, (std::array<int, 3>{-1, 0, 25}));
    EXPECT_FALSE(file.rows[2].shift);
}

TEST(Datums, AShiftIsThreeWholeNumbers) {
    EXPECT_RAISES(13, "datums.csv, line 3: field 6 is no whole number of metres", read("A,B,C,D,1,x,3\n"));
    EXPECT_RAISES(13, "datums.csv, line 3: field 5 is no whole number of metres", read("A,B,C,D,,2,3\n"));
    EXPECT_RAISES(13, "datums.csv, line 3: field 7 is no whole number of metres", read("A,B,C,D,1,2,3.5\n"));
    EXPECT_RAISES(13, "datums.csv, line 3: continent, ellipsoid, region and code are wanted",
                  read("A,B,C,D,1,2\n"));
}

}  // namespace
}  // namespace zg
