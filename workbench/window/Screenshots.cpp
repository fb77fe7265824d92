#include "workbench/window/Screenshots.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <filesystem>

#include "workbench/lab/SimulatedPlate.h"
#include "workbench/traces/InputError.h"
#include "workbench/traces/TraceFile.h"
#include "workbench/window/Desktop.h"

namespace GleanerSvc::Workbench {

namespace {

// Turns the window through sizes and themes and takes its picture each time.
class Camera {
  public:
    Camera(std::string sFolder, Appearance& oAppearance)
        : m_sFolder(std::move(sFolder)), m_oAppearance(oAppearance) {
        if (!QDir().mkpath(QString::fromStdString(m_sFolder)))
            throw InputError(m_sFolder, "", "the folder cannot be made");
    }

    void Take(QWidget& oWindow, const std::string& sState) {
        for (const auto eTheme : {Theme::Light, Theme::Dark}) {
            for (const int nPercent : {100, 200}) {
                m_oAppearance.ShownTheme(eTheme);
                m_oAppearance.Zoom(nPercent / 100.0);
                QCoreApplication::processEvents(); // the new size is known by then
                oWindow.resize(oWindow.sizeHint());
                QCoreApplication::processEvents();
                Save(oWindow.grab(),
                     sState + (eTheme == Theme::Dark ? "-dark-" : "-light-") + std::to_string(nPercent));
            }
        }
    }

    std::vector<std::string> Files() const { return m_asFiles; }

  private:
    void Save(const QPixmap& oPicture, const std::string& sName) {
        m_asFiles.push_back((std::filesystem::path(m_sFolder) / (sName + ".png")).string());
        if (!oPicture.save(QString::fromStdString(m_asFiles.back()), "PNG"))
            throw InputError(m_asFiles.back(), "", "the picture cannot be written");
    }

    std::string m_sFolder;
    Appearance& m_oAppearance;
    std::vector<std::string> m_asFiles;
};

std::vector<SimulatedWell> WellsOf(const std::string& sPlate) {
    return SimulatePlate(OrderOf({{"Trial", sPlate}}));
}

void PickPlate(PlatePage& oPage) {
    oPage.tabPage.ChooseTab(1);
    oPage.cmbProjects.Choose(0);
}

// Its picture is taken while the analyzer is at work on the eighth item.
void TakeRun(Camera& oCamera, WizardWindow& oWindow) {
    AnalysisPage& oPage = *oWindow.OwnWizard().oAnalysis;
    QTimer oLook;
    QObject::connect(&oLook, &QTimer::timeout, [&] {
        if (oPage.lbAnalyzed2.Caption() != "7" || oPage.txtDetails.Text().empty()) return;
        oLook.stop();
        oCamera.Take(oWindow, "analysis-running");
    });
    oLook.start(0);
    oPage.cmdAnalyze.Press();
}

void WalkWizard(Camera& oCamera, Desktop& oDesktop) {
    oDesktop.Start().Analyze("First");
    WizardWindow& oWindow = *oDesktop.OpenWizard();
    Wizard& oWizard = oWindow.OwnWizard();
    auto& oAvailable = dynamic_cast<Models::GridModel&>(*oWizard.oSamples->ctlGleaner.grdAvailable);
    oWizard.oSamples->tabPage.ChooseTab(0);
    oAvailable.DragRows(2, 4);
    oWizard.oSamples->ctlGleaner.cmdAddSingle.Press();
    oAvailable.DragRows(5, 7);
    oCamera.Take(oWindow, "list");
    PickPlate(*oWizard.oSamples);
    oWizard.oSamples->lblLetter[1].ClickIt();
    oWizard.oSamples->lblNumber[6].ClickIt();
    oCamera.Take(oWindow, "plate");
    oWizard.Host().PressNext();
    oCamera.Take(oWindow, "locus-tags");
    oWizard.oLoci->optAlleleIDType[0].Press();
    oCamera.Take(oWindow, "locus-tags-chosen");
    oWizard.Host().PressNext();
    oCamera.Take(oWindow, "analysis-ready");
    TakeRun(oCamera, oWindow);
    oWizard.oAnalysis->cmdFailPrevious.Press();
    oCamera.Take(oWindow, "analysis-done");
    oWizard.Host().PressNext();
    oCamera.Take(oWindow, "results-list");
    PickPlate(*oWizard.oResults);
    oCamera.Take(oWindow, "results-plate");
    oWizard.PressFinish();
    QCoreApplication::processEvents();
}

void ShowRecords(Camera& oCamera, Desktop& oDesktop) {
    oDesktop.Start().ChooseStudy("First");
    oCamera.Take(oDesktop.Start(), "start");
    Lab& oLab = *oDesktop.Start().OwnLab();
    const auto aoResults = oLab.ResultsOfStudy(oLab.FindStudy("First")->lStudyID);
    const auto itFailed = std::ranges::find(aoResults, Status::NoSizeStandard, &ResultRow::eStatus);
    oDesktop.ShowRecord({0, aoResults.front().lResultID});
    oCamera.Take(*oDesktop.Records().back(), "result");
    oDesktop.ShowRecord({0, itFailed->lResultID});
    oCamera.Take(*oDesktop.Records().back(), "result-failed");
    oDesktop.ShowRecord({oLab.SamplesOfPlate(aoResults.front().lPlateID).back().lSampleID});
    oCamera.Take(*oDesktop.Records().back(), "sample");
}

// Some of another plate's traces, one of which is cut.
void TakeImport(Camera& oCamera, Desktop& oDesktop, const std::filesystem::path& oFolder) {
    auto aoWells = WellsOf("P2");
    aoWells.resize(4);
    aoWells.back().abContent.resize(aoWells.back().abContent.size() / 2);
    std::vector<std::string> asFiles;
    for (const auto& oWell : aoWells) {
        asFiles.push_back((oFolder / oWell.sFile).string());
        WriteBytes(asFiles.back(), oWell.abContent);
    }
    oDesktop.Start().Import(asFiles, {"Trial", "P2"});
    oCamera.Take(oDesktop.Start(), "import");
}

} // namespace

std::vector<std::string> TakeScreenshots(const std::string& sFolder) {
    const QTemporaryDir oTemporary;
    if (!oTemporary.isValid())
        throw InputError(oTemporary.path().toStdString(), "", "the folder cannot be made");
    const std::filesystem::path oFolder(oTemporary.path().toStdString());
    Appearance oAppearance(false);
    Camera oCamera(sFolder, oAppearance);
    Desktop oDesktop(oAppearance);
    oDesktop.Start().show();
    oCamera.Take(oDesktop.Start(), "welcome");
    oDesktop.Start().OpenLab((oFolder / "lab.sqlite").string(), LabMode::CreateIfMissing);
    ImportPlate(*oDesktop.Start().OwnLab(), {"Trial", "P1"}, SimulatedStrKit(), WellsOf("P1"));
    oDesktop.Start().Reload();
    WalkWizard(oCamera, oDesktop);
    ShowRecords(oCamera, oDesktop);
    TakeImport(oCamera, oDesktop, oFolder);
    return oCamera.Files();
}

} // namespace GleanerSvc::Workbench
