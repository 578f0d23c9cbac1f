#include "base/LastAct.h"

#include <list>
#include <mutex>
#include <utility>

namespace tarnwick {

namespace {

struct Acts {
  std::mutex lock;
  std::list<LastAct*> living;
};

/// Outlives whatever has an act.
Acts& acts() {
  static auto* const all = new Acts;
  return *all;
}

}  // namespace

LastAct::LastAct(std::function<void()> act) : act_(std::move(act)) {
  const std::lock_guard guard(acts().lock);
  acts().living.push_back(this);
}

LastAct::~LastAct() {
  const std::lock_guard guard(acts().lock);
  acts().living.remove(this);
}

void LastAct::doAll() {
  for (;;) {
    std::function<void()> act;
    {
      const std::lock_guard guard(acts().lock);
      if (acts().living.empty()) return;
      act = std::exchange(acts().living.back()->act_, {});
      acts().living.pop_back();
    }
    try {
      act();
    } catch (...) {
      // Nobody is left who could be told.
    }
  }
}

}  // namespace tarnwick
