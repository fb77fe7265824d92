// A part of a drawing that can be clicked: with the mouse, and with the keyboard. Zones that lie side by side
// are walked over with the arrows, and only one of them stands in the order of the Tab key.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "workbench/window/SpokenWidget.h"

namespace GleanerSvc::Workbench {

class HotZone : public SpokenWidget {
  public:
    explicit HotZone(QWidget* pParent);

    std::function<void(std::int16_t)>
        OnClick; // with a MouseButton; Space is the left one, the menu key the right one

    QStringList SpokenActions() const override;
    void DoSpoken(const QString& sAction) override;

  protected:
    void paintEvent(QPaintEvent* pEvent) override; // the focus
    void mousePressEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void contextMenuEvent(QContextMenuEvent* pEvent) override;
    void focusInEvent(QFocusEvent* pEvent) override;
    void focusOutEvent(QFocusEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;

  private:
    std::vector<HotZone*> Neighbours() const; // those on show beside it
    void Click(std::int16_t iButton) const;
    bool MoveFocus(int nKey) const;
};

} // namespace GleanerSvc::Workbench
