// The grid control's view: a table.
#include "workbench/window/ControlViews.h"
#include "workbench/window/GridTable.h"

namespace GleanerSvc::Workbench {

namespace {

class GridView final : public ControlView {
  public:
    GridView(const Control& oSite, Models::GridModel& oGrid, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oSite, new GridTable(oGrid, pParent, oContext), oContext) {}

  protected:
    void Mirror(Property eProperty) override {
        if (eProperty == Property::Bounds || eProperty == Property::Font)
            static_cast<GridTable&>(Widget()).ShowColumns();
    }
};

} // namespace

MadeView MakeView(const Control& oSite, Models::GridModel& oGrid, QWidget* pParent,
                  const ViewContext& oContext) {
    return std::make_unique<GridView>(oSite, oGrid, pParent, oContext);
}

} // namespace GleanerSvc::Workbench
