// The error log of a lab, with all that is known of one entry.
#pragma once

#include <QWidget>

#include "workbench/store/Lab.h"

class QLabel;
class QPlainTextEdit;

namespace GleanerSvc::Workbench {

class LogTable;
class StartTableView;

class LogPane final : public QWidget {
  public:
    explicit LogPane(QWidget* pParent);

    void Show(Lab& oLab); // fails as the lab does
    const LogTable& Entries() const { return *m_pEntries; }

  private:
    void ShowDetails();

    LogTable* m_pEntries;
    StartTableView* m_pView;
    QPlainTextEdit* m_pDetails;
};

} // namespace GleanerSvc::Workbench
