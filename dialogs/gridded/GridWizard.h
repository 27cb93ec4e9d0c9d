#pragma once

// The wizard for gridded files without its window: four steps, each a frame of controls of which one is
// active at a time, the checks between the steps, and the run at the end. Two forms share it; their
// differences are in GridVariation.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/Host.h"
#include "dialogs/gridded/GridView.h"
#include "dialogs/gridded/Location.h"
#include "dialogs/gridded/Projection.h"
#include "headers/InfoView.h"
#include "processing/ControlFile.h"
#include "processing/ProcessingWindow.h"
#include "processing/ProcessorRun.h"

namespace zg {

/// What differs between the wizards for VENTOS.DAT and 3D.DAT.
struct GridVariation {
    InputKind kind;
    const char* form;  ///< objectName, as is the next
    const char* fileList;
    const char* title;
    const char* filesCaption;
    const char* selectFiles;  ///< message for an empty list
    const char* filter;
    const char* tag;         ///< in the names of stations' outputs
    const char* rootPrefix;  ///< of the run's files
    const char* latitudeMissing;
    const char* longitudeMissing;
    std::size_t mostLocations;
    bool siteWording;        ///< captions of locations always mention extraction sites
    bool isUtc;              ///< data in UTC; the displayed period follows the selected zone
    bool asksProfiling;      ///< there is a vertical profiling method
    bool offersCells;        ///< locations may be given as grid cells
    bool oneCoordinatePair;  ///< in a latitude/longitude run all locations use the coordinates displayed last
};

extern const GridVariation ventosVariation;
extern const GridVariation m3dVariation;

class GridWizard {
 public:
    GridWizard(const GridVariation& variation, GridView& view, Host& host, ProcessStarter& starter,
               ProcessingWindow window);

    /// Initial values of the fields, the first step enabled.
    void Form_Load();

    void cmdNext1_Click();
    void cmdPrevious2_Click();
    void cmdNext2_Click();
    void cmdPrevious3_Click();
    void cmdNext3_Click();
    void cmdPrevious4_Click();
    void cmdPROCESS_Click();
    void cmdNextLocation_Click();
    void cmdPrevLocation_Click();
    void optByStation_Click();
    void optByLocation_Click();
    void cboTimeZone_Click();

    /// Continues to step 3 by location, once the projection is known.
    void Continue();

    const GridVariation& variation() const { return variation_; }

    // State of the form.
    DateTime DataStartTime;
    DateTime DataEndTime;
    std::int32_t CurrentLocation = 1;
    std::int32_t NumberOfLocations = 1;
    bool UseCellCoordinates = false;
    float TimeZoneShiftHours = 0;

    /// What the fields ask for now. Stations that are selected become the locations.
    RunPlan plan();

 private:
    bool refuse(const char* control, const std::string& text);
    bool check(bool passed, const char* control, const char* text);
    bool checkFilled(const char* box, const char* text);

    // Steps 1 and 2.
    bool readHeader(const std::string& path);
    void showPeriodOfData();
    bool checkOrder();
    bool checkWithinData();
    bool useLimit(bool begin, DateTime limit);
    bool checkTimeStep();
    std::int16_t stepSeconds() const;
    float zoneHours() const;
    void toStations();
    void toLocations();

    // Step 3.
    void setStep(int from, int to);
    bool byStation() const;
    bool usesLatitudes() const;
    /// What the caption of step 3 calls a location.
    enum class CaptionWord { Location, Site };
    void showCaption(CaptionWord word);
    void showStationsCaption();
    void showFramesOfMode();
    void enableMoves();
    void disableMoves();
    bool ValidateLocation();
    bool checkStations();
    void SaveLocation(std::int32_t number);
    void ShowLocation(std::int32_t number);

    // The run.
    ControlFile valuesOfRun() const;
    void takeStations(ControlFile& v);
    void takeLocations(ControlFile& v);
    void takeCoordinatesOnShow();
    std::string placeOf(const Location& location) const;
    RunHooks hooks();

    const GridVariation& variation_;
    GridView& view_;
    Host& host_;
    ProcessStarter& starter_;
    ProcessingWindow window_;
    Locations locations_;

    /// What the caption of step 3 says.
    struct OnShow {
        bool stations = false;
        std::int32_t location = 1;
        std::int32_t total = 1;
    };
    OnShow onShow_;
};

}  // namespace zg
