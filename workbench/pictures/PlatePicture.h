// A picture of the plate as a selection page shows it: wells, letters and numbers, legend.
#pragma once

#include <QImage>

#include "platepages/PlatePage.h"

namespace GleanerSvc::Workbench {

// dZoom 1 is 96 pixels an inch. Needs a QGuiApplication for its text.
QImage DrawPlate(const PlatePage& oPage, double dZoom);

} // namespace GleanerSvc::Workbench
