// One sample or one result in a window of its own: the electropherogram above, the peaks below.
#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>
#include <string>

#include "pagebind/Subscriptions.h"
#include "workbench/window/Appearance.h"
#include "workbench/window/RecordChoice.h"
#include "workbench/window/RecordContent.h"

class QLabel;
class QMenu;
class QSortFilterProxyModel;
class QSplitter;
class QTableView;

namespace GleanerSvc::Workbench {

class PeakTable;
class TracePlot;

// What cannot be shown is told in the window. Each operation of the mouse has its entry in a menu.
class RecordWindow final : public QMainWindow {
  public:
    // The record is read once. The appearance outlives the window.
    RecordWindow(const Ref<Lab>& oLab, const RecordChoice& oChoice, Appearance& oAppearance);
    RecordWindow(const RecordWindow&) = delete;
    RecordWindow& operator=(const RecordWindow&) = delete;
    ~RecordWindow() override;

    QSize sizeHint() const override; // of a trace that can be read

    const RecordContent& Content() const { return m_oContent; }
    TracePlot& Plot() const { return *m_pPlot; }
    QTableView& Table() const { return *m_pTable; }

    // A failure is told in a message that does not hold up anything, with the file and the reason.
    bool SavePicture(const std::string& sFile); // PNG, the trace as it stands
    bool SaveTable(const std::string& sFile);   // CSV, the rows that the table shows

  protected:
    void changeEvent(QEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;

  private:
    void AddHead();
    void AddSplitter();
    void AddTrace();
    void AddTable();
    void AddFileMenu();
    void AddTraceMenu();
    void AddDyes(QMenu& oMenu);
    void AddPeakMenu();
    void AddViewMenu();
    void Dress();
    void DressTable();
    void ChangeLook(const std::function<void(TraceLook&)>& fnChange);
    void SortByColumn(bool bAscending);
    void ShowMarkedPeak();
    void SelectPeak(std::size_t nPeak);
    void AskFile(const QString& sTitle, const QString& sFilter, const QString& sSuffix,
                 bool (RecordWindow::*fnSave)(const std::string&));
    bool Save(const std::string& sFile, const std::function<std::string()>& fnContent);

    RecordContent m_oContent;
    Appearance& m_oAppearance;
    std::string m_sHeading; // of the saved picture
    QLabel* m_pHeading = nullptr;
    QLabel* m_pStatus = nullptr;
    QLabel* m_pStandard = nullptr;
    QLabel* m_pProblem = nullptr;
    QSplitter* m_pSplitter = nullptr;
    TracePlot* m_pPlot = nullptr;
    std::unique_ptr<PeakTable> m_oPeaks;
    std::unique_ptr<QSortFilterProxyModel> m_oShown;
    QTableView* m_pTable = nullptr;
    bool m_bWasShown = false;
    Subscriptions m_oSubscriptions;
};

} // namespace GleanerSvc::Workbench
