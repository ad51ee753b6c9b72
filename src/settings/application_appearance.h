#pragma once

namespace vantor {

/// Carries out the choice of appearance for the whole program. Main thread.
class ApplicationAppearance {
  public:
    virtual ~ApplicationAppearance() = default;
    virtual void followSystem() = 0;
    virtual void forceDark() = 0;
    virtual void forceLight() = 0;
};

}  // namespace vantor
