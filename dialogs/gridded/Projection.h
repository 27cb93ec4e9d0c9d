#pragma once

// The map projection in which extraction sites are typed: the record that the control file is filled from,
// and the rules by which its fields are checked.

#include <array>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "processing/ControlFile.h"

namespace zg {

/// What the projection dialog goes on with after OK.
class ProjectionCaller {
 public:
    virtual ~ProjectionCaller() = default;
    virtual void Continue() = 0;
};

/// One record for the whole program, and the wizard that the dialog was opened by.
extern ProjectionRecord projection;
extern ProjectionCaller* CallingForm;

/// A latitude or longitude: its text box, the combo box of its hemisphere, and its place in the record.
struct AngleField {
    const char* box;
    const char* combo;
    bool isLatitude;
    std::string ProjectionRecord::*value;
};

/// A field that is kept as its trimmed text.
struct PlainField {
    const char* box;
    std::string ProjectionRecord::*value;
};

/// One projection as the dialog offers it. The entry of the list and the caption by which the record is read
/// and written are not the same for the last three.
struct ProjectionChoice {
    const char* pmap;
    const char* entry;
    const char* caption;
    const char* frame;  ///< objectName; "" where there is nothing to ask
    std::vector<AngleField> angles;
    std::vector<PlainField> plains;
    const char* emptyMessage;
    bool isTrimmed;  ///< a field of blanks alone counts as empty
};

/// In the order of the list: LL, UTM, LCC, TTM, PS, EM, LAZA.
const std::vector<ProjectionChoice>& projectionChoices();

/// Text of the box or combo box of that objectName.
using FieldText = std::function<std::string(const char* name)>;

/// The choice whose caption that is, nullptr for none: what the list offers for the last three is none.
const ProjectionChoice* choiceOfCaption(const std::string& caption);
const ProjectionChoice* choiceOfPmap(const std::string& pmap);

/// What is wrong with the fields of a choice, "" for nothing: first what is empty, then the ranges in order,
/// -90 to 90 and -360 to 360 with their ends, whatever the hemisphere. Raises 13 for what is no number.
std::string projectionFault(const ProjectionChoice& choice, const FieldText& text);

/// All boxes of latitudes, whatever the projection, in their order.
std::span<const char* const> latitudeBoxes();

/// A number above 180 loses 360 and one below -180 gains 360; others, and an empty text, stay as typed.
/// Raises 13 for what is no number.
std::string wrapped(const std::string& text);

/// Takes the fields of a choice into the record; those of other projections stay. The datum is always taken.
void SaveProjection(const ProjectionChoice& choice, const FieldText& text);

}  // namespace zg
