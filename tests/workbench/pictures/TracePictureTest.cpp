// Pictures of a made-up trace: what stands where is known to the pixel.
#include "workbench/pictures/TracePicture.h"

#include <gtest/gtest.h>
#include <qcustomplot.h>

#include "tests/workbench/window/WindowTest.h"

namespace GleanerSvc::Workbench {
namespace {

constexpr std::size_t Scans = 8000;
constexpr int Width = 1200;
constexpr int Height = 600;

// Two dyes: a peak of 1000 RFU at scan 4000 in the first, the standard's 300 bp at scan 5600 in the second.
struct TraceScene {
    TraceScene() {
        oTrace.aoDyes = {{"Blue", std::vector<std::int16_t>(Scans)},
                         {"Orange", std::vector<std::int16_t>(Scans)}};
        AddPeak(0, 4000, 1000);
        AddPeak(1, 5600, 500);
        oCalled.aoCalls = {{"L1", "12", 0}};
    }
    void AddPeak(std::size_t nDye, std::size_t nScan, double dHeight) {
        for (int nAway = -30; nAway <= 30; ++nAway)
            oTrace.aoDyes[nDye].aiValues[nScan - 30 + static_cast<std::size_t>(nAway + 30)] =
                static_cast<std::int16_t>(std::lround(dHeight * std::exp(-nAway * nAway / 50.0)));
        oSized.aoPeaks.push_back({nDye, static_cast<double>(nScan), dHeight, 12, {}});
    }
    // A base pair is 16 scans: 200 bp at the peak.
    void Size() {
        for (const double dSize : StandardFragments())
            oSized.oFit.aoPoints.push_back({dSize, 16 * dSize + 800});
    }
    TraceView View() const { return {oTrace, oSized, oCalled, "A title", aoBins}; }
    // Leaves the plot as it was drawn.
    QImage Draw(const TraceLook& oLook = {}) {
        PlotTrace(oPlot, View(), oLook);
        oPlot.setViewport(QRect(0, 0, Width, Height));
        return oPlot.toPixmap(Width, Height).toImage();
    }
    QPoint Place(int nRect, double dAt, double dHeight) const {
        const QCPAxisRect* pRect = oPlot.axisRect(nRect);
        return {static_cast<int>(std::lround(pRect->axis(QCPAxis::atBottom)->coordToPixel(dAt))),
                static_cast<int>(std::lround(pRect->axis(QCPAxis::atLeft)->coordToPixel(dHeight)))};
    }

    struct Application {
        Application() { EnsureApplication(); }
    } oApplication;
    Trace oTrace;
    SizedTrace oSized;
    CalledTrace oCalled;
    std::vector<BinMark> aoBins;
    QCustomPlot oPlot;
};

bool HasColour(const QImage& oImage, const QRect& oRect, const QColor& oColour) {
    constexpr int Tolerance = 40; // the edge of a line is mixed with what is behind it
    for (int nY = oRect.top(); nY <= oRect.bottom(); ++nY) {
        for (int nX = oRect.left(); nX <= oRect.right(); ++nX) {
            const QColor oPixel = oImage.pixelColor(nX, nY);
            if (std::abs(oPixel.red() - oColour.red()) + std::abs(oPixel.green() - oColour.green()) +
                    std::abs(oPixel.blue() - oColour.blue()) <
                Tolerance)
                return true;
        }
    }
    return false;
}

QRect Around(const QPoint& oPlace, int nReach) {
    return {oPlace - QPoint(nReach, nReach), oPlace + QPoint(nReach, nReach)};
}

// The smallest rectangle around all that differs.
QRect Difference(const QImage& oOne, const QImage& oOther) {
    QRect oRect;
    for (int nY = 0; nY < oOne.height(); ++nY) {
        for (int nX = 0; nX < oOne.width(); ++nX)
            if (oOne.pixel(nX, nY) != oOther.pixel(nX, nY)) oRect |= QRect(nX, nY, 1, 1);
    }
    return oRect;
}

TEST(TracePicture, EachCurveRisesInItsColourWhereItsPeakIs) {
    TraceScene oScene;
    for (const bool bSized : {false, true}) {
        if (bSized) oScene.Size();
        for (const bool bDark : {false, true}) {
            const QImage oImage = oScene.Draw({bDark});
            const double dFirst = bSized ? 200 : 4000;
            const double dSecond = bSized ? 300 : 5600;
            EXPECT_TRUE(HasColour(oImage, Around(oScene.Place(0, dFirst, 500), 4), DyeInk(0, bDark)));
            EXPECT_TRUE(HasColour(oImage, Around(oScene.Place(0, dFirst, 990), 3), DyeInk(0, bDark)));
            EXPECT_FALSE(HasColour(oImage, Around(oScene.Place(0, dSecond, 300), 8), DyeInk(0, bDark)));
            EXPECT_TRUE(HasColour(oImage, Around(oScene.Place(1, dSecond, 250), 4), DyeInk(1, bDark)));
            EXPECT_EQ(oImage.pixelColor(2, Height - 2).lightness() < 128, bDark);
        }
    }
}

TEST(TracePicture, TheNameOfAnAlleleStandsAboveItsPeak) {
    TraceScene oScene;
    oScene.Size();
    const QImage oNamed = oScene.Draw();
    const QPoint oTop = oScene.Place(0, 200, 1000);
    oScene.oCalled.aoCalls.clear();
    const QRect oName = Difference(oNamed, oScene.Draw());
    ASSERT_FALSE(oName.isEmpty());
    EXPECT_LE(std::abs(oName.center().x() - oTop.x()), 3);
    EXPECT_TRUE(oName.bottom() <= oTop.y() && oName.top() > oTop.y() - 40) << oName.top();
    // As do the sizes of the standard, in its own plot.
    const QRect oSizes = Difference(oScene.Draw(), oScene.Draw({.bStandard = false}));
    EXPECT_GE(oSizes.top(), oScene.oPlot.axisRect(1)->top());
    EXPECT_LT(oSizes.left(), oScene.Place(1, 100, 0).x());
    EXPECT_GT(oSizes.right(), oScene.Place(1, 490, 0).x());
}

TEST(TracePicture, AllelesWithoutRoomShareAName) {
    TraceScene oScene;
    oScene.Size();
    oScene.AddPeak(0, 4064, 700); // 4 bp away
    const auto fnWidth = [&](double dFirst, double dLast) {
        const auto fnDraw = [&] {
            PlotTrace(oScene.oPlot, oScene.View());
            oScene.oPlot.axisRect(0)->axis(QCPAxis::atBottom)->setRange(dFirst, dLast);
            oScene.oPlot.setViewport(QRect(0, 0, Width, Height));
            return oScene.oPlot.toPixmap(Width, Height).toImage();
        };
        oScene.oCalled.aoCalls = {{"L1", "12", 0}};
        const QImage oOne = fnDraw();
        oScene.oCalled.aoCalls.push_back({"L1", "13", 2});
        return Difference(oOne, fnDraw()).width();
    };
    EXPECT_LT(fnWidth(70, 510), 60) << "one text in place of the other";
    EXPECT_LT(fnWidth(190, 215), 40) << "the other name alone, over its own peak";
}

TEST(TracePicture, BinsAreShadedInTheirDyeAlone) {
    TraceScene oScene;
    oScene.Size();
    const QImage oBare = oScene.Draw();
    oScene.aoBins = {{"L1", "12", 0, 180, 220}};
    const QImage oShaded = oScene.Draw();
    const QRect oBin = Difference(oBare, oShaded);
    EXPECT_NEAR(oBin.left(), oScene.Place(0, 180, 0).x(), 1);
    EXPECT_NEAR(oBin.right(), oScene.Place(0, 220, 0).x(), 1);
    EXPECT_LE(oBin.bottom(), oScene.oPlot.axisRect(0)->bottom() + 1);
    EXPECT_EQ(oScene.Draw({.bBins = false}), oBare);
    oScene.oSized.oFit = {}; // without sizes they have no place
    oScene.aoBins.clear();
    const QImage oUnsized = oScene.Draw();
    oScene.aoBins = {{"L1", "12", 0, 4000, 4100}};
    EXPECT_EQ(oScene.Draw(), oUnsized);
}

TEST(TracePicture, TheAxisRunsOverWhatLiesBehindThePrimers) {
    TraceScene oScene;
    oScene.Size();
    const TraceAxis oAxis = AxisOf(oScene.View());
    EXPECT_TRUE(oAxis.dLeast == 50 && oAxis.dMost == 510) << "the shortest fragment of the standard";
    EXPECT_NEAR(PlaceOnAxis(oScene.View(), 4000).value(), 200, 1e-6);
    EXPECT_FALSE(PlaceOnAxis(oScene.View(), 1500));
    oScene.Draw({.oHiddenDyes = {0}});
    EXPECT_EQ(oScene.oPlot.axisRectCount(), 1);
    EXPECT_EQ(oScene.oPlot.axisRect(0)->axis(QCPAxis::atLeft)->label(), "Orange [RFU]");
    EXPECT_EQ(oScene.oPlot.axisRect(0)->axis(QCPAxis::atBottom)->label(), "Size [bp]");
    oScene.oTrace.aoDyes.clear(); // a damaged file has none
    EXPECT_FALSE(oScene.Draw().isNull());
}

} // namespace
} // namespace GleanerSvc::Workbench
