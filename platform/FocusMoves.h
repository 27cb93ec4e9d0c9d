#pragma once

#include <QWidget>
#include <functional>

#include "base/Host.h"

namespace zg {

/// Enter goes on to the next control, as Tab does.
void enterIsTab(QWidget& field);

/// What follows when the focus leaves a control; an error is shown.
void whenLeft(Host& host, QWidget& field, std::function<void()> action);

}  // namespace zg
