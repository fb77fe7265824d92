// What became of the files of the last import, and the ways to bring more into the lab.
#pragma once

#include <QWidget>

#include <vector>

#include "workbench/lab/FileImport.h"
#include "workbench/window/StartActions.h"

class QLabel;

namespace GleanerSvc::Workbench {

class ImportTable;
class StartTableView;

class ImportPane final : public QWidget {
  public:
    ImportPane(const StartActions& oActions, QWidget* pParent);

    void Show(std::vector<ImportedFile> aoFiles);
    const std::vector<ImportedFile>& Files() const;
    QString Summary() const; // "3 of 6 files imported, 1 there already, 2 refused."

  private:
    void ShowSummary();

    ImportTable* m_pFiles;
    StartTableView* m_pView;
    QLabel* m_pSummary;
};

} // namespace GleanerSvc::Workbench
