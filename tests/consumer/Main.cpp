// A program outside the project: exits with 0 when the installed library works.
#include "pagebind/KeyedCollection.h"
#include "selectionlist/GleanerCtl.h"

int main() {
    GleanerSvc::KeyedCollection colItems;
    colItems.Add("value", "Key");
    const float fCount =
        colItems.Count(); // the project's own warnings would refuse this; they must not reach here
    return fCount == 1 && colItems.Item("KEY").ToText() == "value" ? 0 : 1;
}
