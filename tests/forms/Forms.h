#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "graph/model/Plot.h"
#include "platform/PolarGraphWidget.h"
#include "processing/ProcessStarter.h"
#include "tests/support/TempDirectory.h"
#include "tests/support/TestHost.h"

namespace zg {

/// Does nothing: no form in these tests starts a run.
class IdleStarter : public ProcessStarter {
 public:
    void start(const std::string&, WindowStyle) override {}
};

/// What forms need: a program directory, a stand-in for the user, and a plot with a file loaded.
struct FormWorld {
    FormWorld();

    TempDirectory directory;
    TestHost host;
    IdleStarter starter;
    PolarGraphWidget plot;
    GrapInfo graph;
    std::string chosenDirectory;
};

/// A form in one of its states.
struct FormRow {
    const char* form;   ///< objectName
    const char* state;  ///< "" if it has only one
    std::function<std::unique_ptr<QWidget>(FormWorld&)> make;
    std::function<void(QWidget&)> bring = {};  ///< brings the displayed form into the state
};

/// Every form of the program; a new form needs only another row.
const std::vector<FormRow>& forms();

std::string rowName(const FormRow& row);

/// Prints the row in a failed test.
void PrintTo(const FormRow& row, std::ostream* out);

/// Creates and shows the form of that row, with the focus.
std::unique_ptr<QWidget> open(const FormRow& row, FormWorld& world);

/// Calls the function for each tab page of the form, or once if it has none.
void forEachPage(QWidget& form, const std::function<void(const std::string& page)>& look);

}  // namespace zg
