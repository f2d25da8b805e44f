#pragma once

#include <string>

namespace kavela {

/// A message for the user, in the system's own words.
struct Alert {
    std::string title;
    std::string text;

    friend bool operator==(const Alert&, const Alert&) = default;
};

/// How a tool tells the user something: a box on the desktop, a line on standard error of the
/// command line, a record in a test.
class Alerts {
public:
    virtual ~Alerts() = default;
    virtual void show(const Alert& alert) = 0;
};

} // namespace kavela
