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

/// Does nothing: no form of these tests gets as far as a run.
class IdleStarter : public ProcessStarter {
 public:
    void start(const std::string&, WindowStyle) override {}
};

/// What forms need to be made: a program directory of its own, a person, and a plot with a file loaded.
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
    const char* state;  ///< "" where it has only one
    std::function<std::unique_ptr<QWidget>(FormWorld&)> make;
    std::function<void(QWidget&)> bring = {};  ///< brings the form that is on show into the state
};

/// Every form of the program. A new form is one more row.
const std::vector<FormRow>& forms();

std::string rowName(const FormRow& row);

/// How a row is told by a test that fails.
void PrintTo(const FormRow& row, std::ostream* out);

/// Makes the form of that row and shows it; it has the focus.
std::unique_ptr<QWidget> open(const FormRow& row, FormWorld& world);

/// Calls the function for each tab page of the form in turn, or once where it has none.
void forEachPage(QWidget& form, const std::function<void(const std::string& page)>& look);

}  // namespace zg
