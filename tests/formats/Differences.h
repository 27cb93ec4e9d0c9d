#pragma once

// Where dialogs and processor may part over a raw file, and why.

#include "formats/Kinds.h"

namespace zg {

/// The first row that fits counts. `where` is the beginning of what was done to the file, or "line 6 fields 1
/// to 8".
struct Difference {
    InputKind kind;
    const char* where;
    const char* reason;
};

// Reasons that several kinds share. "Must": the program has always done so, and who uses it may rely on it.
inline constexpr const char* periodIsShown =
    "a dialog shows the period of the header and must raise the error of a field that is none; the processor "
    "takes the times of "
    "the records";
inline constexpr const char* zoneIsKept =
    "a dialog must keep the zone that it shows if the file's is not in its list; the processor needs one";
inline constexpr const char* countAlone = "in these headers the number of comments must be alone on its line";
inline constexpr const char* countBeforeHyphen =
    "a dialog must take all that comes before the hyphen for the number";
inline constexpr const char* stationLine =
    "a dialog must find a colon in the line of the station unless it is blank";
inline constexpr const char* oldConversion = "a dialog must round a count, and take one below 1 for none";
inline constexpr const char* timeOfDay = "a dialog must refuse hour 24 where it is part of a time of day";
inline constexpr const char* secondsWithin = "a dialog must take seconds without their whole hours";
inline constexpr const char* finalPoint =
    "a dialog must refuse a part of a date or time that is not digits alone";
inline constexpr const char* monthAtStart =
    "a dialog must take the number at the start of the text for the month, rounded";
inline constexpr const char* oneHour =
    "a dialog needs an hour to show; without any the processor has nothing to count";
inline constexpr const char* noWind = "a dialog reads no wind, and so needs no column of it";
inline constexpr const char* neededCells =
    "the processor looks for the cells around a place that only it knows";
inline constexpr const char* outside = "the place that the processor is asked for then lies outside the grid";

inline constexpr Difference differences[] = {
    {InputKind::Surf, "line 1 field 1: surf.dat",
     "the dialog must compare the name with its capital letters"},
    {InputKind::Surf, "line 1 field 2: 2.1",
     "the dialog must take columns 17 to 19 for the version, whatever follows"},
    {InputKind::Surf, "line 2 field 1: 1-Text", countAlone},
    {InputKind::Surf, "line 5 field 1:", zoneIsKept},
    {InputKind::Surf, "line 6 fields 1 to 8", periodIsShown},
    {InputKind::Surf, "line 6 field 9:", oldConversion},
    {InputKind::Surf, "version in another column", "the dialog must take columns 17 to 19 for the version"},
    {InputKind::Surf, "version 2.0, half an hour", "the dialog must round the zone to whole hours"},
    {InputKind::Surf, "a whole hour of seconds", secondsWithin},
    {InputKind::Surf, "day 366 of 1900", "the dialogs must take every fourth year for a leap year"},
    {InputKind::Surf, "lines that end in CR",
     "the dialogs must read lines that end in CR alone; no data of the processor do"},

    {InputKind::Up, "line 2 field 1: 1-Text", countAlone},
    {InputKind::Up, "line 5 field 1:", zoneIsKept},
    {InputKind::Up, "line 6 fields 1 to 8", periodIsShown},

    {InputKind::MonitorW, "line 1 fields 4 to 5", noWind},
    {InputKind::MonitorW, "line 2 field 1: 12/1/2003 1:00.", finalPoint},
    {InputKind::MonitorW, "line 2 field 2:", "the dialog must take any number of minutes that fits"},
    {InputKind::MonitorW, "afternoon", "the dialog must ignore AM and PM"},
    {InputKind::MonitorW, "hour 24", timeOfDay},

    {InputKind::AermSfc, "line 2 left out", oneHour},
    {InputKind::AermSfc, "line 2 field 1: 88.", finalPoint},
    {InputKind::AermSfc, "line 2 field 2:", monthAtStart},
    {InputKind::AermSfc, "line 2 field 3: 1.", finalPoint},
    {InputKind::AermSfc, "line 2 field 5: 1.", finalPoint},

    {InputKind::AermPfl, "line 1 left out", oneHour},
    {InputKind::AermPfl, "line 1 field 1: 88.", finalPoint},
    {InputKind::AermPfl, "line 1 field 2:", monthAtStart},
    {InputKind::AermPfl, "line 1 field 3: 1.", finalPoint},
    {InputKind::AermPfl, "line 1 field 4: 1.", finalPoint},

    {InputKind::Tsf, "line 2 field 1: 0", stationLine},
    {InputKind::Tsf, "line 2 field 2:", countBeforeHyphen},
    {InputKind::Tsf, "line 6 field 1:", stationLine},
    {InputKind::Tsf, "line 7 field 1:", zoneIsKept},
    {InputKind::Tsf, "line 9 fields 1 to 11", periodIsShown},
    {InputKind::Tsf, "line 10 field 1: 1.5", oldConversion},
    {InputKind::Tsf, "line 10 field 2:", countBeforeHyphen},
    {InputKind::Tsf, "hour 24", timeOfDay},
    {InputKind::Tsf, "a whole hour of seconds", secondsWithin},

    {InputKind::M3d, "line 7 fields 1 to 2", periodIsShown},
    {InputKind::M3d, "line 12 fields 1 to 2", neededCells},
    {InputKind::M3d, "line 13 fields 1 to 2", neededCells},
    {InputKind::M3d, "line 14 fields 1 to 2", neededCells},
    {InputKind::M3d, "line 15 fields 1 to 2", neededCells},

    {InputKind::Ventos, "line 5 fields 1 to 10", periodIsShown},
    {InputKind::Ventos,
     "line 6 field 2:", "the table of datums that the wizard checks by may be a library's own"},
    {InputKind::Ventos, "line 6 field 4:", outside},
    {InputKind::Ventos, "line 7 fields 4 to 6", outside},
};

}  // namespace zg
