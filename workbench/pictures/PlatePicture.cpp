#include "workbench/pictures/PlatePicture.h"

#include <QString>

#include "workbench/pictures/Artwork.h"

namespace GleanerSvc::Workbench {

namespace {

constexpr double TwipsPerPixel = 15; // at 96 pixels an inch
constexpr std::int32_t Margin = 120; // twips
constexpr std::int32_t PlateBottom = 4680;

class PlateDrawing {
  public:
    PlateDrawing(QPainter& oPainter, double dZoom) : m_oPainter(oPainter), m_dZoom(dZoom) {}

    // In twips of the plate's frame.
    QRectF RectOf(const Control& oControl, const Control* pFrame = nullptr) const {
        const Bounds& oPlace = oControl.Place();
        const double dLeft = oPlace.lLeft + (pFrame ? pFrame->Place().lLeft : 0);
        const double dTop = oPlace.lTop + (pFrame ? pFrame->Place().lTop : 0);
        return {Pixels(dLeft), Pixels(dTop), Pixels(oPlace.lWidth), Pixels(oPlace.lHeight)};
    }
    void Artwork(const Control& oControl, const Picture& oPicture, const Control* pFrame = nullptr) {
        PaintArtwork(m_oPainter, RectOf(oControl, pFrame), oPicture.sName);
    }
    void Text(const QRectF& oRect, const QString& sText, double dPoints, int eAlign) {
        QFont oFont("DejaVu Sans");
        oFont.setPixelSize(static_cast<int>(Pixels(dPoints * 20)));
        m_oPainter.setFont(oFont);
        m_oPainter.setPen(Qt::black);
        m_oPainter.drawText(oRect, eAlign, sText);
    }

  private:
    double Pixels(double dTwips) const { return dTwips / TwipsPerPixel * m_dZoom; }

    QPainter& m_oPainter;
    double m_dZoom;
};

void DrawWells(PlateDrawing& oDrawing, const PlatePage& oPage) {
    for (std::int16_t iIndex = 1; iIndex < oPage.picWell.Size(); ++iIndex) {
        const PictureBox& oWell = oPage.picWell[iIndex];
        if (oWell.Visible()) oDrawing.Artwork(oWell, oWell.Picture());
    }
}

void DrawLegend(PlateDrawing& oDrawing, const PlatePage& oPage) {
    for (std::int16_t iEntry = 0; iEntry < oPage.imgLegend.Size(); ++iEntry) {
        oDrawing.Artwork(oPage.imgLegend[iEntry], oPage.imgLegend[iEntry].Picture(), &oPage.frmLegend);
        const Label& oLabel = oPage.lblLegend[iEntry];
        oDrawing.Text(oDrawing.RectOf(oLabel, &oPage.frmLegend), QString::fromStdString(oLabel.Caption()),
                      8.25, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip);
    }
}

} // namespace

QImage DrawPlate(const PlatePage& oPage, double dZoom) {
    const double dScale = dZoom / TwipsPerPixel;
    QImage oImage(static_cast<int>((oPage.frmPlate.Place().lWidth + Margin) * dScale),
                  static_cast<int>(PlateBottom * dScale), QImage::Format_RGB32);
    oImage.fill(Qt::white);
    QPainter oPainter(&oImage);
    PlateDrawing oDrawing(oPainter, dZoom);
    oDrawing.Text(oDrawing.RectOf(oPage.lblPlate), QString::fromStdString(oPage.cmbPlates.Text()), 9.75,
                  Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip);
    oDrawing.Artwork(oPage.Image3, oPage.Image3.Picture());
    oDrawing.Artwork(oPage.picAllWells, oPage.picAllWells.Picture());
    DrawWells(oDrawing, oPage);
    DrawLegend(oDrawing, oPage);
    return oImage;
}

} // namespace GleanerSvc::Workbench
