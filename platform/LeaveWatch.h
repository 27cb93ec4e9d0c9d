#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

#include "base/Host.h"

namespace zg {

/// Does what follows when the focus leaves a field. A member of the form, so that it ends before what its
/// actions use.
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
