// An operator moves a sample in the selection list, over the in-memory models.
#include <iostream>

#include "models/ModelLibraries.h"
#include "selectionlist/GleanerCtl.h"

using namespace GleanerSvc;

int main() {
    const auto oLibraries = Models::ModelLibraries::Create();
    oLibraries->Store().Fill("Alpha: A1 A2 A3\nBeta: B1 B2");

    GleanerCtl oList(oLibraries->MakeApartment());
    const Ref<IKeyedCollection> colSelected = std::make_shared<KeyedCollection>();
    oList.Initialize("Raw Data", colSelected);

    oList.cmbProjects.Choose(1);                      // the operator chooses Alpha,
    oLibraries->Grid("grdAvailable").ClickLeft(2, 1); // clicks the second row
    oList.cmdAddSingle.Press();                       // and presses ">"

    std::cout << oList.ToString() << '\n';
    return colSelected->Count() == 1 ? 0 : 1;
}
