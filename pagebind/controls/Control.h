// The base of every control model. A model holds a control's state and the rules that keep it sound; a view
// only mirrors it.
//
// Two doors: setters are the page's; gestures (press, choose, type, pick, click) are the operator's. A
// gesture on a control that is disabled or not on show does nothing, as for a person. Setters are not so
// limited.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "pagebind/Event.h"

namespace GleanerSvc {

class Container;

// In twips, relative to the container. Nothing here computes with pixels.
struct Bounds {
    std::int32_t lLeft = 0;
    std::int32_t lTop = 0;
    std::int32_t lWidth = 0;
    std::int32_t lHeight = 0;

    friend bool operator==(const Bounds&, const Bounds&) = default;
};

struct Font {
    std::string sName = "MS Sans Serif";
    double dPoints = 8.25;
    bool bBold = false;

    friend bool operator==(const Font&, const Font&) = default;
};

// What a change notification is about.
enum class Property {
    Enabled,
    Visible,
    Bounds,
    ToolTip,
    Font,
    Caption,
    Text,         // the whole text is new
    TextAppended, // the text grew at its end
    Caret,
    Refresh, // the page asks for a repaint at once
    Items,
    Choice,
    Value,
    Limits,
    Picture,
    FrontTab,
    TabEnabled,
    ZOrder,
    Children // a container has one more or one less; one that is new is not whole yet
};

class Control {
  public:
    // pContainer may be null for a control that stands alone; otherwise it outlives the control.
    Control(Container* pContainer, std::string sName, Bounds oBounds);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    const std::string& Name() const { return m_sName; }
    std::int16_t Index() const { return m_iIndex; } // place in a control array, -1 for none
    Container* Parent() const { return m_pContainer; }

    const Bounds& Place() const { return m_oBounds; }
    void Place(const Bounds& oBounds);
    void Left(std::int32_t lLeft);
    void Top(std::int32_t lTop);
    void Height(std::int32_t lHeight);

    bool Visible() const { return m_bVisible; } // the property; IsOnShow takes the containers into account
    void Visible(bool bVisible);
    bool Enabled() const { return m_bEnabled; }
    void Enabled(bool bEnabled);
    const std::string& ToolTip() const { return m_sToolTip; }
    void ToolTip(std::string_view sToolTip);
    const GleanerSvc::Font& Font() const { return m_oFont; }
    void Font(const GleanerSvc::Font& oFont);
    void BringToFront();

    bool IsOnShow() const;   // it and every container around it
    bool CanOperate() const; // on show and enabled, it and every container around it

    // The one notification: which control changed, and which property. Raised here and then on every
    // container around it, after the change, and only when there was one.
    Event<const Control&, Property> OnChanged;

    // The control's state in one line: name, then "hidden" and "disabled" where it is that, then what its
    // kind adds. "cmdAddAll disabled caption=">>"".
    std::string ToString() const;

  protected:
    void Index(std::int16_t iIndex) { m_iIndex = iIndex; }
    void Notify(Property eProperty) const;
    // Sets a field and notifies when that changes it; tells whether it did.
    template<class T, class U>
    bool Change(T& oField, const U& oValue, Property eProperty) {
        if (oField == oValue) return false;
        oField = oValue;
        Notify(eProperty);
        return true;
    }
    virtual std::string StateText() const { return ""; } // begins with a blank unless empty

  private:
    Container* m_pContainer;
    std::string m_sName;
    std::int16_t m_iIndex = -1;
    Bounds m_oBounds;
    bool m_bVisible = true;
    bool m_bEnabled = true;
    std::string m_sToolTip;
    GleanerSvc::Font m_oFont;
};

// A control that holds others: frame, tab control, user control. It knows its children and owns none of them.
class Container : public Control {
  public:
    using Control::Control;

    // From the back to the front.
    const std::vector<Control*>& Children() const { return m_aoChildren; }

    // May be false for a child of a tab that is not in front.
    virtual bool Shows(const Control& /*oChild*/) const { return true; }

  private:
    friend class Control;
    void Adopt(Control& oChild);
    void Release(const Control& oChild);
    void Raise(Control& oChild);

    std::vector<Control*> m_aoChildren;
};

} // namespace GleanerSvc
