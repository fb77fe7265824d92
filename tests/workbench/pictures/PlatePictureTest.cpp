#include "workbench/pictures/PlatePicture.h"

#include <gtest/gtest.h>

#include "tests/platepages/PlateScene.h"
#include "tests/workbench/window/WindowTest.h"
#include "workbench/pictures/Artwork.h"

namespace GleanerSvc::Workbench {
namespace {

// Of a well, at shares of its width from the middle.
struct WellColours {
    const char* szName = nullptr;
    QColor oMiddle;
    QColor oRing; // at 0.28
    QColor oRim;  // at 0.37
};

TEST(PlatePicture, EachWellLooksAsTheLegendSaysAtAnyScale) {
    const WellColours aoWells[] = {{WellPicture::Empty.data(), Ink::Grey, Ink::Grey, Ink::Dark},
                                   {WellPicture::Raw.data(), Ink::Dark, Ink::Dark, Ink::Dark},
                                   {WellPicture::RawChecked.data(), Ink::Grey, Ink::Amber, Ink::Dark},
                                   {WellPicture::Warning.data(), Ink::Yellow, Ink::Dark, Ink::Dark},
                                   {WellPicture::WarningChecked.data(), Ink::Dark, Ink::Amber, Ink::Amber}};
    for (const int nSize : {48, 240}) {
        for (const auto& oWell : aoWells) {
            QImage oImage(nSize, nSize, QImage::Format_RGB32);
            oImage.fill(Qt::white);
            QPainter oPainter(&oImage);
            PaintArtwork(oPainter, QRectF(0, 0, nSize, nSize), oWell.szName);
            oPainter.end();
            const auto fnAt = [&](double dShare) {
                return oImage.pixelColor(static_cast<int>(nSize * (0.5 + dShare)), nSize / 2);
            };
            EXPECT_EQ(fnAt(0), oWell.oMiddle) << oWell.szName;
            EXPECT_EQ(fnAt(0.28), oWell.oRing) << oWell.szName;
            EXPECT_EQ(fnAt(0.37), oWell.oRim) << oWell.szName;
            EXPECT_EQ(fnAt(0.45), QColor(Qt::white)) << oWell.szName;
        }
    }
}

TEST(PlatePicture, ShowsTheStateOfEachWellOfThePage) {
    EnsureApplication();
    SampleScene oScene;
    oScene.Enter();
    oScene.Well("A3").ClickIt(MouseButton::Left);
    const auto fnColour = [&](const QImage& oImage, int nZoom, std::string_view sWell) {
        const Bounds& oPlace = oScene.Well(sWell).Place();
        return oImage.pixelColor((oPlace.lLeft + oPlace.lWidth / 2) * nZoom / 15,
                                 (oPlace.lTop + oPlace.lHeight / 2) * nZoom / 15);
    };
    for (const int nZoom : {1, 3}) {
        const QImage oImage = DrawPlate(*oScene.oPage, nZoom);
        EXPECT_EQ(fnColour(oImage, nZoom, "A1"), Ink::Yellow) << "analyzed already";
        EXPECT_EQ(fnColour(oImage, nZoom, "A3"), Ink::Grey) << "the spot of a selected one";
        EXPECT_EQ(fnColour(oImage, nZoom, "H12"), Ink::Grey);
        oScene.Well("A3").ClickIt(MouseButton::Left);
        EXPECT_EQ(fnColour(DrawPlate(*oScene.oPage, nZoom), nZoom, "A3"), Ink::Dark) << "its data alone";
        oScene.Well("A3").ClickIt(MouseButton::Left);
    }
}

} // namespace
} // namespace GleanerSvc::Workbench
