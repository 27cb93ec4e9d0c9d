#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

#include "base/Host.h"

namespace zg {

/// Calls an action when the focus leaves a field. Make it a member of the form, so that it is destroyed
/// before what its actions use.
class LeaveWatch : public QObject {
 public:
    explicit LeaveWatch(Host& host) : host_(host) {}

    void whenLeft(QWidget& field, std::function<void()> action);
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    Host& host_;
    std::vector<std::pair<QObject*, std::function<void()>>> actions_;
};

}  // namespace zg
