#pragma once

// The map projection in which extraction sites are typed: the record from which the control file is filled,
// and the rules for checking its fields.

#include <array>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "processing/ControlFile.h"

namespace zg {

/// One record for the whole program.
extern ProjectionRecord projection;

/// The projection in the last answer of modInfoViewDLL, in the form of the record.
ProjectionRecord nativeProjection();

/// A latitude or longitude: its text box, the combo box of its hemisphere, and its member of the record.
struct AngleField {
    const char* box;
    const char* combo;
    bool isLatitude;
    std::string ProjectionRecord::*value;
};

/// A field that is stored as its trimmed text.
struct PlainField {
    const char* box;
    std::string ProjectionRecord::*value;
};

/// One projection as the dialog offers it. For the last three, the entry of the list differs from the caption
/// by which the record is read and written.
struct ProjectionChoice {
    const char* pmap;
    const char* entry;
    const char* caption;
    const char* frame;  ///< objectName; "" if it has no fields
    std::vector<AngleField> angles;
    std::vector<PlainField> plains;
    const char* emptyMessage;
    bool isTrimmed;  ///< a field of blanks alone counts as empty
};

/// In the order of the list: LL, UTM, LCC, TTM, PS, EM, LAZA.
const std::vector<ProjectionChoice>& projectionChoices();

/// Text of the box or combo box with that objectName.
using FieldText = std::function<std::string(const char* name)>;

/// The choice with that caption, nullptr if there is none: the list's entries for the last three are not
/// captions.
const ProjectionChoice* choiceOfCaption(const std::string& caption);
const ProjectionChoice* choiceOfPmap(const std::string& pmap);

/// The error in the fields of a choice, "" if there is none: first empty fields, then the ranges in order,
/// -90 to 90 and -360 to 360 inclusive, whatever the hemisphere. Raises 13 for text that is not a number.
std::string projectionFault(const ProjectionChoice& choice, const FieldText& text);

/// All boxes of latitudes, whatever the projection, in their order.
std::span<const char* const> latitudeBoxes();

/// A number above 180 is reduced by 360 and one below -180 increased by 360; others, and an empty text,
/// remain as typed. Raises 13 for text that is not a number.
std::string wrapped(const std::string& text);

/// Stores the fields of a choice in the record; those of other projections are unchanged. The datum is always
/// stored.
void SaveProjection(const ProjectionChoice& choice, const FieldText& text);

}  // namespace zg
