#pragma once

#include <map>
#include <set>

#include "dialogs/gridded/GridView.h"

namespace zg {

/// The wizard's form without a window: records what it shows and what was done to it.
class FakeGridView : public GridView {
 public:
    std::string text(const char* control) const override {
        const auto found = texts.find(control);
        return found == texts.end() ? std::string() : found->second;
    }
    void setText(const char* control, const std::string& text) override { texts[control] = text; }
    bool checked(const char* option) const override { return checkedOption == option; }
    std::vector<std::string> rows(const char* list) const override {
        return std::string(list) == "lstStations" ? stationRows : files;
    }
    std::vector<bool> selectedRows(const char*) const override { return selected; }
    int row(const char*) const override { return zoneRow; }
    void setRow(const char*, int row) override { zoneRow = row; }
    DateTime begin() const override { return beginShown; }
    DateTime end() const override { return endShown; }
    void setBegin(DateTime moment) override { beginShown = moment; }
    void setEnd(DateTime moment) override { endShown = moment; }
    TimeOfDay timeStep() const override { return step; }
    void mark(const char* control, bool invalid) override {
        if (invalid)
            marked.insert(control);
        else
            marked.erase(control);
    }
    void setEnabled(const char* control, bool enabled) override { enabledControls[control] = enabled; }
    void setFieldEnabled(const char* control, bool enabled) override { enabledControls[control] = enabled; }
    void setVisible(const char* control, bool visible) override { visibleControls[control] = visible; }
    void focus(const char* control) override { focused = control; }
    void setStates(Names plainOff, Names fieldsOff, Names plainOn, Names fieldsOn) override {
        for (const Names names : {plainOff, fieldsOff})
            for (const char* name : names) enabledControls[name] = false;
        for (const Names names : {plainOn, fieldsOn})
            for (const char* name : names) enabledControls[name] = true;
    }
    void setBusy(bool busy) override {
        isBusy = busy;
        if (busy && onBusy) onBusy();
    }
    void setReason(const std::string& text) override { texts["lblReason"] = text; }
    void setTipOfStatus(const std::string& text) override { statusTip = text; }
    bool chooseOtherDirectory() override {
        if (otherDirectory.empty()) return false;
        texts["txtOutputDirectory"] = otherDirectory;
        return true;
    }
    bool askProjection() override {
        ++projectionAsked;
        return onProjection && onProjection();
    }

    /// The step whose buttons are enabled; 0 if they do not all belong to one step.
    int step1to4() const {
        int active = 0;
        const std::map<int, std::string> buttons = {
            {1, "cmdNext1"}, {2, "cmdNext2"}, {3, "cmdPrevious3"}, {4, "cmdPROCESS"}};
        for (const auto& [number, button] : buttons)
            if (enabledControls.at(button)) active = active == 0 ? number : -1;
        return active;
    }

    std::map<std::string, std::string> texts;
    std::string checkedOption = "optByLocation";
    std::vector<std::string> files;
    std::vector<std::string> stationRows;
    std::vector<bool> selected;
    int zoneRow = -1;
    DateTime beginShown = makeDate(2020, 1, 1);
    DateTime endShown = makeDate(2020, 1, 2);
    TimeOfDay step{1, 0, 0};
    std::set<std::string> marked;
    std::map<std::string, bool> enabledControls;
    std::map<std::string, bool> visibleControls;
    std::string focused;
    std::string statusTip;
    std::string otherDirectory;  ///< the answer when the wizard asks for another directory
    bool isBusy = false;
    int projectionAsked = 0;
    std::function<bool()> onProjection;  ///< what the dialog is answered with; unset is its Cancel
    std::function<void()> onBusy;        ///< called at the start of a run
};

}  // namespace zg
