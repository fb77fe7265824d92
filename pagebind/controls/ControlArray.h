// Controls of one kind and name, told apart by their index from 0.
#pragma once

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "pagebind/controls/Control.h"

namespace GleanerSvc {

template<class T>
class ControlArray {
  public:
    // The next index is the new control's.
    template<class... Args>
    T& Add(Container& oContainer, const std::string& sName, Args&&... aArguments) {
        m_aoControls.push_back(
            std::make_unique<T>(oContainer, sName, Size(), std::forward<Args>(aArguments)...));
        return *m_aoControls.back();
    }

    std::int16_t Size() const { return static_cast<std::int16_t>(m_aoControls.size()); }
    // An index that is not there fails with subscript.
    T& operator[](std::int32_t lIndex) const { return *m_aoControls.at(static_cast<std::size_t>(lIndex)); }

  private:
    std::vector<std::unique_ptr<T>> m_aoControls;
};

} // namespace GleanerSvc
