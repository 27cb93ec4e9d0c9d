#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/Dates.h"

namespace zg {

/// The form as the wizard sees it. Controls are identified by their objectNames.
class GridView {
 public:
    virtual ~GridView() = default;
    using Names = std::span<const char* const>;

    /// Text of a text box, choice of a combo box ("" for none), caption of a frame or label.
    virtual std::string text(const char* control) const = 0;
    virtual void setText(const char* control, const std::string& text) = 0;
    virtual bool checked(const char* option) const = 0;

    /// Rows of a list; the marks say which are selected.
    virtual std::vector<std::string> rows(const char* list) const = 0;
    virtual std::vector<bool> selectedRows(const char* list) const = 0;

    /// Row of a combo box, -1 for none.
    virtual int row(const char* combo) const = 0;
    virtual void setRow(const char* combo, int row) = 0;

    /// The begin and end of the period in the pickers, and the step as a time of day.
    virtual DateTime begin() const = 0;
    virtual DateTime end() const = 0;
    virtual void setBegin(DateTime moment) = 0;
    virtual void setEnd(DateTime moment) = 0;
    virtual TimeOfDay timeStep() const = 0;

    virtual void mark(const char* control, bool invalid) = 0;
    virtual void setEnabled(const char* control, bool enabled) = 0;       ///< only the flag
    virtual void setFieldEnabled(const char* control, bool enabled) = 0;  ///< and the background
    virtual void setVisible(const char* control, bool visible) = 0;
    virtual void focus(const char* control) = 0;

    /// SetFieldStates: plain controls and fields off, plain controls and fields on.
    virtual void setStates(Names plainOff, Names fieldsOff, Names plainOn, Names fieldsOn) = 0;

    virtual void setBusy(bool busy) = 0;

    /// The line below the status, and the tool tip of the status itself; "" removes them.
    virtual void setReason(const std::string& text) = 0;
    virtual void setTipOfStatus(const std::string& text) = 0;

    /// Asks for another output directory; false if none was chosen.
    virtual bool chooseOtherDirectory() = 0;
    /// Shows the projection dialog until it is closed; whether its OK filled the projection record.
    virtual bool askProjection() = 0;
};

}  // namespace zg
