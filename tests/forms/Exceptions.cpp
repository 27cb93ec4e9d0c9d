#include "tests/forms/Exceptions.h"

#include <array>

namespace zg {

namespace {

constexpr const char* besideItsLabel = "lies next to the control that the accelerator goes to, one Tab away";
constexpr const char* twinOfAButton = "does the same as the control beside it, which has the accelerator";
constexpr const char* startsWithIt = "is the first control and has the keyboard when the form opens";
constexpr const char* namesALabel = "names a text that only shows something";

}  // namespace

std::span<const Exception> exceptions() {
    static const auto all = std::to_array<Exception>({
        {Check::Accelerators, "frmMain", "tblToolbar_*", "each runs a menu entry, which has a key"},
        {Check::Accelerators, "frmMain", "tblToolbox_*", "tools for the pointer, of which no keys are told"},
        {Check::Accelerators, "frmMain", "lst*", "opens beside its tool, one Tab away"},
        {Check::Accelerators, "frmMain", "picGraph", "the page, without a caption"},
        {Check::Accelerators, "frmMain", "lvwTable", "has titles and no caption; follows the button Plot"},
        {Check::Accelerators, "frmAddLabel", "txtLabelLine*", besideItsLabel},
        {Check::Accelerators, "frmBatchMode", "txtSingleFRQFile", besideItsLabel},
        {Check::Accelerators, "frmBatchMode", "txtDirectory", besideItsLabel},
        {Check::Accelerators, "frmComment", "txtComment", startsWithIt},
        {Check::Accelerators, "frmGridFonts", "cmdResetToDefaults_GridLines",
         "all letters of its caption are those of other buttons; one Tab from the color of the grid"},
        {Check::Accelerators, "frmGridFonts", "picGridColor", twinOfAButton},
        {Check::Accelerators, "frmGuide", "txtGuide", startsWithIt},
        {Check::Accelerators, "frmOpenAERMETPFLFile", "txtYLoc", besideItsLabel},
        {Check::Accelerators, "frmOpenAERMETSFCFile", "txtYLoc", besideItsLabel},
        {Check::Accelerators, "frmOpenAMMNETDataFile", "txtYLoc", besideItsLabel},
        {Check::Accelerators, "frmOpenTSFDataFile", "txtYLoc", besideItsLabel},
        {Check::Accelerators, "frmOpenAERMETPFLFile", "DTPicker_*Time", besideItsLabel},
        {Check::Accelerators, "frmOpenAERMETSFCFile", "DTPicker_*Time", besideItsLabel},
        {Check::Accelerators, "frmOpenAMMNETDataFile", "DTPicker_*Time", besideItsLabel},
        {Check::Accelerators, "frmOpenSURFDATFile", "DTPicker_*Time", besideItsLabel},
        {Check::Accelerators, "frmOpenTSFDataFile", "DTPicker_*Time", besideItsLabel},
        {Check::Accelerators, "frmOpenUPDATFile", "DTPicker_*Time", besideItsLabel},
        {Check::Accelerators, "frmProcess3DDATFiles", "DTPicker_*Time", besideItsLabel},
        {Check::Accelerators, "frmProcessVENTOSDATFiles", "DTPicker_*Time", besideItsLabel},
        {Check::Accelerators, "frmProcessVENTOSDATFiles", "cboNS", besideItsLabel},
        {Check::Accelerators, "frmProcessVENTOSDATFiles", "cboWE", besideItsLabel},
        {Check::Accelerators, "frmProjectionInfo", "cboLCCR*", besideItsLabel},
        {Check::Accelerators, "frmProjectionInfo", "cboPSR*", besideItsLabel},
        {Check::Accelerators, "frmProjectionInfo", "cboLZR*", besideItsLabel},
        {Check::Accelerators, "frmOpenUPDATFile", "DATE:", "the title of a column"},
        {Check::Accelerators, "frmOpenUPDATFile", "HOUR:", "the title of a column"},
        {Check::Accelerators, "frmOptions", "picGraph", "the page on show, without a caption"},
        {Check::Accelerators, "frmOptions", "picBkColor", twinOfAButton},
        {Check::Accelerators, "frmOptions", "picGridColor", twinOfAButton},
        {Check::Accelerators, "frmOptions", "picFillColor", twinOfAButton},
        {Check::Accelerators, "frmOptions", "picLabelColor", twinOfAButton},
        {Check::Accelerators, "frmOptionsLegend", "cmdClassColor_*", twinOfAButton},
        {Check::Accelerators, "frmProperties", "cmdLcolor", twinOfAButton},
        {Check::Accelerators, "frmProperties", "cmdMcolor", twinOfAButton},
        {Check::Accelerators, "frmProperties", "cmdMpicloc_*", besideItsLabel},
        {Check::Accelerators, "frmProperties", "cmbMalignv", besideItsLabel},
        {Check::Accelerators, "frmSetSeasons", "txtCustomSeason_*", besideItsLabel},
        {Check::Accelerators, "frmTable", "lvwData", startsWithIt},
        {Check::Accelerators, "frmTable", "Coefficient :", namesALabel},
        {Check::Accelerators, "frmTable", "Function    :", namesALabel},
        {Check::Accelerators, "frmTable", "Legend     :", namesALabel},
    });
    return all;
}

}  // namespace zg
