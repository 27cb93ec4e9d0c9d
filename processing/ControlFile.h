#pragma once

// The control file, the only channel to the processor: always written completely, with every comment line.
// Values are written exactly as they are.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Dates.h"
#include "formats/Kinds.h"

namespace zg {

/// One series that the processor makes.
struct ControlOutput {
    std::string id;        ///< "1"
    std::string name;      ///< file name without directory and extension
    std::string location;  ///< "" leaves the line inert
    std::string place;     ///< "72503, 0, 0" of a station, "3.2, 15.88" of a grid's location
    std::string height;    ///< metres above ground
    bool located = false;  ///< the line is active even for a location of ""
};

/// A key of a table's layout, and its value.
struct ControlKey {
    std::string key;
    std::string value;
};

/// Map projection and datum, all as texts, with the names used in the file.
struct ProjectionRecord {
    std::string PMAP;  ///< "LL", "UTM", "LCC", "TTM", "PS", "EM", "LAZA"; "NONE" leaves all inert
    std::string FEAST;
    std::string FNORTH;
    std::string IUTMZN;
    std::string UTMHEM;
    std::string RLAT0;
    std::string RLON0;
    std::string XLAT1;
    std::string XLAT2;
    std::string DATUM;  ///< active unless PMAP is "NONE"
};

struct ControlFile {
    InputKind type = InputKind::Surf;
    std::string title;
    std::string base;                     ///< of the run's files
    std::vector<std::string> inputFiles;  ///< as in the dialog; gridded dialogs may give several
    std::string roseName;                 ///< of TSF input
    std::vector<ControlOutput> outputs;   ///< not written for TSF input

    std::string IBYR, IBMO, IBDY, IBHR, IBSEC;  ///< IBSEC within the hour, as IESEC
    std::string IEYR, IEMO, IEDY, IEHR, IESEC;
    std::string ABTZ;
    std::string NSECDT;

    std::string WSBIN;
    std::vector<std::string> seasonNames;
    std::string MSN;

    // Of the gridded dialogs:
    std::string METSIM;
    ProjectionRecord projection;
    std::string MPROF;  ///< of 3D.DAT input, as is the next
    std::string MCELL;

    std::vector<ControlKey> tableKeys;  ///< of Csv input
};

/// Sets the begin and end of the period, in the zone of ABTZ.
void setPeriod(ControlFile& values, DateTime begin, DateTime end);

/// The bytes of the file, each line ended by CR LF.
std::string controlFileBytes(const ControlFile& values);

/// Writes them to "{directory}{base}_tempoline.inp"; raises the error of the file.
void WriteControlFile(const std::string& directory, const ControlFile& values);

}  // namespace zg
