#include "workbench/window/ControlViews.h"

#include "pagebind/controls/GridControl.h"
#include "pagebind/controls/PopupMenu.h"

namespace GleanerSvc::Workbench {

namespace {

// The first kind of the list that the control is.
template<class First, class... Rest>
MadeView MakeFirst(Control& oControl, QWidget* pParent, const ViewContext& oContext) {
    if (auto* pOfKind = dynamic_cast<First*>(&oControl)) return MakeView(*pOfKind, pParent, oContext);
    if constexpr (sizeof...(Rest) > 0) return MakeFirst<Rest...>(oControl, pParent, oContext);
    return nullptr;
}

} // namespace

MadeView MakeControlView(Control& oControl, QWidget* pParent, const ViewContext& oContext) {
    if (dynamic_cast<PopupMenu*>(&oControl)) return nullptr; // opens when the page says so
    if (auto* pGrid = dynamic_cast<GridControl*>(&oControl))
        return MakeView(oControl, dynamic_cast<Models::GridModel&>(**pGrid), pParent, oContext);
    return MakeFirst<Label, Button, OptionButton, CheckBox, DropDownList, TextBox, DatePicker, PictureBox,
                     Image, ProgressBar, Frame, TabControl, Container>(oControl, pParent, oContext);
}

} // namespace GleanerSvc::Workbench
