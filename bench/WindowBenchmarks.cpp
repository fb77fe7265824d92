// The selection list in a window: what the window adds to the same gesture on the models alone, and what the
// operator waits for. Rows are samples.
#include <QApplication>
#include <QScrollBar>
#include <QTableView>

#include <map>

#include "bench/Benchmarks.h"
#include "bench/ListRun.h"
#include "bench/Turns.h"
#include "pagebind/Text.h"
#include "workbench/window/PageView.h"

namespace GleanerSvc::Bench {
namespace {

using namespace Workbench;

// Without a screen: the pictures are drawn all the same. It lives as long as the program.
void EnsureApplication() {
    if (QApplication::instance()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int nArguments = 1;
    static char szName[] = "gleaner_bench";
    static char* aszArguments[] = {szName, nullptr};
    static auto* const pApplication = new QApplication(nArguments, aszArguments);
    static_cast<void>(pApplication);
}

// A list with its window, and the loop that draws what has changed.
class ListWindow {
  public:
    explicit ListWindow(Models::ModelLibraries& oLibraries) : m_oRun(oLibraries) {}

    ListRun& Run() { return m_oRun; }
    void Show() {
        m_pView = std::make_unique<PageView>(m_oRun.List(), ViewContext{m_oAppearance, m_oDoor});
        m_pView->show();
        Draw();
    }
    static void Draw() { QCoreApplication::processEvents(); }
    QTableView& Available() const {
        return *m_pView->findChild<QTableView*>(QString::fromStdString(m_oRun.AvailableName()));
    }

  private:
    ListRun m_oRun;
    Appearance m_oAppearance{false};
    GestureDoor m_oDoor{};
    std::unique_ptr<PageView> m_pView;
};

// Twenty places from the first row to the last, each drawn.
void ScrollThrough(const ListWindow& oWindow) {
    constexpr int Places = 20;
    auto& oBar = *oWindow.Available().verticalScrollBar();
    for (int nPlace = 1; nPlace <= Places; ++nPlace) {
        oBar.setValue(static_cast<int>(std::int64_t{oBar.maximum()} * nPlace / Places));
        ListWindow::Draw();
    }
}

struct Operation {
    const char* sName;
    const char* sFloor; // the same on the models alone, or the same at its smallest size
    void (*fnPrepare)(ListWindow&);
    void (*fnRun)(ListWindow&);
    bool bAllSelected; // afterwards
};

constexpr Operation Operations[] = {
    {"WindowOpen", "RefreshView", [](ListWindow&) {}, [](ListWindow& oWindow) { oWindow.Show(); }, false},
    {"WindowRefresh", "RefreshView", [](ListWindow& oWindow) { oWindow.Show(); },
     [](ListWindow& oWindow) {
         oWindow.Run().Refresh();
         ListWindow::Draw();
     },
     false},
    {"WindowScroll", "", [](ListWindow& oWindow) { oWindow.Show(); },
     [](ListWindow& oWindow) { ScrollThrough(oWindow); }, false},
    {"WindowAddAll", "AddAll", [](ListWindow& oWindow) { oWindow.Show(); },
     [](ListWindow& oWindow) {
         oWindow.Run().AddAll();
         ListWindow::Draw();
     },
     true},
};

void Measure(benchmark::State& oState, const Operation& oOperation) {
    EnsureApplication();
    const std::int64_t nRows = oState.range(0);
    static std::map<std::int64_t, Ref<Models::ModelLibraries>> s_oStores;
    auto& oLibraries = s_oStores[nRows];
    if (!oLibraries) oLibraries = MakeSamples(static_cast<std::int32_t>(nRows));
    Turns oTurns(oState);
    for ([[maybe_unused]] auto oTurn : oState) {
        ListWindow oWindow(*oLibraries);
        oOperation.fnPrepare(oWindow);
        oTurns.Time([&] { oOperation.fnRun(oWindow); });
        const std::int64_t nShown = oWindow.Available().model()->rowCount();
        if (!oTurns.Expect(DecimalText(nShown), DecimalText(oOperation.bAllSelected ? 0 : nRows))) break;
    }
    oTurns.Close();
}

} // namespace

void RegisterWindow(RatioReporter& oReporter, bool bQuick) {
    for (const Operation& oOperation : Operations) {
        if (*oOperation.sFloor) oReporter.Compare(oOperation.sName, oOperation.sFloor);
        InTurns(
            benchmark::RegisterBenchmark(
                oOperation.sName, [&oOperation](benchmark::State& oState) { Measure(oState, oOperation); }),
            bQuick ? 100000 : 1000000);
    }
}

} // namespace GleanerSvc::Bench
