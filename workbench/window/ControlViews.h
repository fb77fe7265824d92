// One maker for each kind of control.
#pragma once

#include "models/GridModel.h"
#include "pagebind/controls/Button.h"
#include "pagebind/controls/CheckBox.h"
#include "pagebind/controls/DatePicker.h"
#include "pagebind/controls/DropDownList.h"
#include "pagebind/controls/Frame.h"
#include "pagebind/controls/Image.h"
#include "pagebind/controls/Label.h"
#include "pagebind/controls/OptionButton.h"
#include "pagebind/controls/PictureBox.h"
#include "pagebind/controls/ProgressBar.h"
#include "pagebind/controls/TabControl.h"
#include "pagebind/controls/TextBox.h"
#include "workbench/window/ControlView.h"

namespace GleanerSvc::Workbench {

using MadeView = std::unique_ptr<ControlView>;

MadeView MakeView(Label& oLabel, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(TextBox& oText, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(Button& oButton, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(OptionButton& oButton, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(CheckBox& oBox, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(DropDownList& oList, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(DatePicker& oPicker, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(PictureBox& oBox, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(Image& oImage, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(ProgressBar& oBar, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(Frame& oFrame, QWidget* pParent, const ViewContext& oContext);
MadeView MakeView(TabControl& oTabs, QWidget* pParent, const ViewContext& oContext);
// A user control or a selector's site: its children and nothing else.
MadeView MakeView(Container& oContainer, QWidget* pParent, const ViewContext& oContext);
// The grid of a grid control.
MadeView MakeView(const Control& oSite, Models::GridModel& oGrid, QWidget* pParent,
                  const ViewContext& oContext);

} // namespace GleanerSvc::Workbench
