#include "ui/EndRequests.h"

namespace tarnwick::ui {

// The toolkit itself hears that the session ends.
struct EndRequests::Signals {};

EndRequests::EndRequests(std::function<void()>, std::function<void()>) {}

EndRequests::~EndRequests() = default;

}  // namespace tarnwick::ui
