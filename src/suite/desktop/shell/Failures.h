#pragma once

#include <exception>
#include <functional>

class QWidget;

namespace suite::desktop {

// A failure that reached a window: its sentence, with the database's own words folded away. Where the connection was
// lost and there is a way to connect anew, that is offered; a failure of connecting is shown likewise. What has been
// told already, and what the user has cancelled, shows nothing.
void showFailure(const std::exception& failure, const std::function<void()>& reconnect, QWidget* parent);

// Whether it is the user's own cancel.
bool isCancel(const std::exception& failure);

} // namespace suite::desktop
