// The studies of a lab, and the results of the one that is chosen.
#pragma once

#include <QWidget>

#include <cstdint>
#include <vector>

#include "pagebind/Event.h"
#include "workbench/store/Lab.h"
#include "workbench/window/StartActions.h"

class QLabel;

namespace GleanerSvc::Workbench {

class StartTableView;
class StudyResultTable;
class StudyTable;

class StudyPane final : public QWidget {
  public:
    StudyPane(const StartActions& oActions, QWidget* pParent);

    // Reads the lab; the chosen study stays chosen where it is still there. Fails as the lab does.
    void Show(const Ref<Lab>& oLab);

    const StudyRow* Chosen() const; // nothing for no row; without an ID: all results
    bool Choose(std::int32_t lStudyID);
    const std::vector<ResultRow>& Results() const; // of the chosen study
    // The selected ones, or all where none is selected.
    std::vector<std::int32_t> MeantIDs() const;
    std::int32_t CurrentID() const; // of the result under the focus, 0 for none

    Event<> OnChanged;                                           // of the choice, or of what is selected
    Event<std::int32_t> OnPicked;                                // a result by Enter or a double click
    std::function<void(const std::function<void()>&)> fnGuarded; // runs what may fail, and tells of it

  private:
    QWidget* MakeStudies(const StartActions& oActions);
    QWidget* MakeResults(const StartActions& oActions);
    void Connect();
    void ShowResults();
    void ShowNote();

    Ref<Lab> m_oLab;
    StudyTable* m_pStudies;
    StudyResultTable* m_pResults;
    StartTableView* m_pStudyView = nullptr;
    StartTableView* m_pResultView = nullptr;
    QLabel* m_pHeading = nullptr; // above the results
    QLabel* m_pNote = nullptr;    // below them
};

} // namespace GleanerSvc::Workbench
