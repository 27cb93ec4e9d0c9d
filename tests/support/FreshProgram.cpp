#include "tests/support/FreshProgram.h"

#include <filesystem>
#include <string>

#include "base/Paths.h"
#include "dialogs/gridded/DatumTable.h"
#include "dialogs/gridded/Projection.h"
#include "graph/frq/ModPolarGraph.h"
#include "headers/GridFileHeader.h"
#include "headers/InfoView.h"
#include "headers/Stations.h"
#include "headers/Zones.h"
#include "processing/Directories.h"
#include "settings/Settings.h"

namespace {

void reset() {
    zg::modPolarGraph = {};
    zg::settings = {};
    zg::timeZones = {};
    zg::stations = {};
    zg::projection = {};
    zg::fileCounts = {};
    zg::modInfoViewDLL = {zg::readGridFileHeader, {}, {}, {}, {}};
    zg::modDatums = {zg::readDatumRecord, {}};
    zg::applicationDirectory.clear();
    zg::settingsDirectory.clear();
}

}  // namespace

FreshProgram::FreshProgram() {
    reset();
    zg::applicationDirectory = directory.path();
}

FreshProgram::~FreshProgram() { reset(); }

void FreshProgram::deliver(std::initializer_list<const char*> names) const {
    for (const char* name : names)
        std::filesystem::copy(std::string(ZG_SOURCE_DIR "/data/") + name, zg::inApplicationDirectory(name));
}
