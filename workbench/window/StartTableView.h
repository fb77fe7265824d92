// A table of whole rows that grows with its font and leaves the Tab key to the window.
#pragma once

#include <QTableView>

#include <vector>

namespace GleanerSvc::Workbench {

class StartTableView final : public QTableView {
  public:
    // The name is what a screen reader says.
    StartTableView(QAbstractItemModel* pModel, const QString& sName, QWidget* pParent);

    std::vector<int> SelectedRows() const; // from the top

  protected:
    void changeEvent(QEvent* pEvent) override;

  private:
    void Fit();
};

} // namespace GleanerSvc::Workbench
