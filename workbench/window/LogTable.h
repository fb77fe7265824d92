// The error log of a lab, the latest entry first.
#pragma once

#include "workbench/store/Rows.h"
#include "workbench/window/StartTable.h"

namespace GleanerSvc::Workbench {

class LogTable final : public StartTable<LogRow> {
  public:
    explicit LogTable(QObject* pParent);
    static QString Details(const LogRow& oEntry); // all of the entry, a line for each field
};

} // namespace GleanerSvc::Workbench
