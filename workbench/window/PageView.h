// A page on the screen: a view for each of its controls, at the places of the design, in a window that
// scrolls when it is smaller. It follows the page's one notification; a control that comes or goes gains or
// loses its view.
#pragma once

#include <QScrollArea>

#include <memory>
#include <unordered_map>

#include "pagebind/Subscriptions.h"
#include "workbench/window/ControlView.h"

namespace GleanerSvc::Workbench {

class PageView final : public QScrollArea {
  public:
    // The page outlives its view.
    PageView(Container& oPage, const ViewContext& oContext, QWidget* pParent = nullptr);
    PageView(const PageView&) = delete;
    PageView& operator=(const PageView&) = delete;
    ~PageView() override;

    // Nothing for a control that has no widget, such as a menu.
    QWidget* WidgetOf(const Control& oControl) const;
    QSize sizeHint() const override; // the whole page

  private:
    struct Entry {
        std::unique_ptr<ControlView> oView;
        const Container* pAround = nullptr; // the key of its container's entry
        Container* pOwn = nullptr;          // the control, if it is a container itself
    };

    void AddChildren(Container& oContainer, QWidget& oAround);
    void Follow(const Control& oControl, Property eProperty);
    void DropGone(const Container& oContainer);
    void AddNew(const Container* pContainer);
    void OrderByPlace();
    void ShowFocus(QWidget* pFocus);
    void ShowZoom();

    Container& m_oPage;
    ViewContext m_oContext;
    std::unordered_map<const Control*, Entry> m_oViews;
    Subscriptions m_oSubscriptions;
};

} // namespace GleanerSvc::Workbench
