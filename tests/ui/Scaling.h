// The system's settings for larger letters and pixels, for runs of this program anew: a program takes them in when it
// starts.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tarnwick::test {

/// One way in which a user's windows are larger than usual.
struct Scaling {
  std::string name;
  /// By how much letters grow, in pixels of the screen.
  double growth;
  /// What the system knows it by.
  std::string setting;
};

inline std::ostream& operator<<(std::ostream& out, const Scaling& scaling) {
  return out << scaling.name;
}

/// The ways that the system knows.
std::vector<Scaling> allScalings();

/// Why the system's settings cannot be changed here; empty if they can.
std::string whyNoScaling();

/// The command that runs a program on a screen with room for large windows, with a blank at its end; empty where the
/// present screen does.
std::string largeScreen();

/// Holds a scaling in force, for programs that start in its life.
class ScalingInForce {
 public:
  explicit ScalingInForce(const Scaling& scaling);
  ~ScalingInForce();
  ScalingInForce(const ScalingInForce&) = delete;
  ScalingInForce& operator=(const ScalingInForce&) = delete;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tarnwick::test
