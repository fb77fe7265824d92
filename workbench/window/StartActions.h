// What the operator can do in the start window: one action each, for its menu, its key and its button alike.
#pragma once

#include <QAction>
#include <QMainWindow>

#include <functional>

#include "workbench/window/Appearance.h"

class QAbstractButton;
class QMenu;

namespace GleanerSvc::Workbench {

class StartActions {
  public:
    // Makes the window's menus. The appearance outlives the window.
    StartActions(QMainWindow& oWindow, Appearance& oAppearance);

    QAction* pNewLab = nullptr;
    QAction* pOpenLab = nullptr;
    QAction* pReadLab = nullptr;
    QAction* pUsualLab = nullptr;
    QAction* pImport = nullptr;
    QAction* pImportKit = nullptr;
    QAction* pSimulate = nullptr;
    QAction* pExport = nullptr;
    QAction* pReload = nullptr;
    QAction* pQuit = nullptr;
    QAction* pAnalyze = nullptr;
    QAction* pAnalyzeNew = nullptr;
    QAction* pAgainResults = nullptr;
    QAction* pAgainAlleles = nullptr;
    QAction* pShowResult = nullptr;
    QAction* pStudies = nullptr;
    QAction* pImported = nullptr;
    QAction* pLog = nullptr;

  private:
    QAction* Add(QMenu& oMenu, const char* szText, const char* szKey, const char* szTip);
    QMenu& AddMenu(const char* szTitle);
    void AddFile();
    void AddStudy();
    void AddView();
    void AddZoom(QMenu& oMenu);
    void AddThemes(QMenu& oMenu);

    QMainWindow& m_oWindow;
    Appearance& m_oAppearance;
    QAction* m_pLight = nullptr;
    QAction* m_pDark = nullptr;
};

// A button that does what the action does, and only when it can be done. The caption may mark another letter
// than the menu does.
QAbstractButton* ActionButton(QAction* pAction, const char* szCaption, QWidget* pParent);

} // namespace GleanerSvc::Workbench
