// The widget of one control model. It mirrors the model's state and hands the operator's gestures to it; it
// holds no state of its own.
#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>

#include "pagebind/controls/Control.h"
#include "workbench/window/Appearance.h"
#include "workbench/window/GestureDoor.h"

namespace GleanerSvc::Workbench {

// What all views of a window share.
struct ViewContext {
    Appearance& oAppearance;
    GestureDoor& Gesture;
};

class ControlView {
  public:
    // Takes the widget, which has its parent already.
    ControlView(const Control& oControl, QWidget* pWidget, const ViewContext& oContext);
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;
    // The widget ends when the event in work is done: it may be its own.
    virtual ~ControlView();

    const Control& Model() const { return m_oControl; }
    QWidget& Widget() const { return *m_pWidget; }

    void ShowAll();
    void Show(Property eProperty);

  protected:
    // What the kind adds to enabled, visible, place, font and tool tip. Called for each property that
    // changed, and once with each that a new view has to show.
    virtual void Mirror(Property /*eProperty*/) {}
    // The kind's own properties, shown at first.
    virtual std::vector<Property> OwnProperties() const { return {}; }
    // What a screen reader says: a caption, a tool tip, or the label beside it.
    virtual QString OwnName() const { return {}; }
    // Decoration, and a container that only places its children, need no name.
    virtual bool IsSpoken() const { return true; }

    const ViewContext& Context() const { return m_oContext; }
    // A gesture of this view: nothing when the model is gone by then.
    void Gesture(const std::function<void()>& fnGesture) const;
    int Pixels(std::int32_t lTwips) const { return m_oContext.oAppearance.Pixels(lTwips); }

  private:
    void ShowVisible();
    void ShowName();

    const Control& m_oControl;
    QPointer<QWidget> m_pWidget;
    ViewContext m_oContext;
};

// The view of a control of any kind, below a widget; nothing for one that is not drawn, as a menu. Here and
// nowhere else each kind is bound to its widget.
std::unique_ptr<ControlView> MakeControlView(Control& oControl, QWidget* pParent,
                                             const ViewContext& oContext);

} // namespace GleanerSvc::Workbench
