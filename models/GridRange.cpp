#include "models/GridRange.h"

namespace GleanerSvc::Models {

std::string GridRange::ToString() const {
    if (m_bTable) return "table";
    const auto Text = [](double dNumber) { return Value(dNumber).ToText(); };
    return Text(m_oCorners.dLeft) + "," + Text(m_oCorners.dTop) + " to " + Text(m_oCorners.dRight) + "," +
           Text(m_oCorners.dBottom);
}

Ref<IGridRange> GridRangeList::Range(std::int32_t lPlace) {
    Call("Range", lPlace);
    if (lPlace < 1 || lPlace > std::ssize(m_aoRanges)) {
        throw Failure(FailureNumber::Subscript, ObjectName(),
                      ObjectName() + " has no range at place " + DecimalText(lPlace) + "; it holds " +
                          DecimalText(std::ssize(m_aoRanges)) + ".");
    }
    return m_aoRanges[static_cast<std::size_t>(lPlace) - 1];
}

} // namespace GleanerSvc::Models
