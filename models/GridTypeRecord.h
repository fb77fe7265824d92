// A grid type record of the data store: the layout of one kind of grid. Pages only pass it on.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "pagebind/Object.h"

namespace GleanerSvc::Models {

class GridTypeRecord : public virtual IObject {
  public:
    struct Column {
        std::string sHeading;
        std::int32_t lWidth; // twips
    };

    // The columns from 1 on, in order.
    GridTypeRecord(std::int32_t lGridTypeID, std::vector<Column> aoColumns)
        : m_lGridTypeID(lGridTypeID), m_aoColumns(std::move(aoColumns)) {}

    std::int32_t ID() const { return m_lGridTypeID; }
    const std::vector<Column>& Columns() const { return m_aoColumns; }

  private:
    std::int32_t m_lGridTypeID;
    std::vector<Column> m_aoColumns;
};

} // namespace GleanerSvc::Models
