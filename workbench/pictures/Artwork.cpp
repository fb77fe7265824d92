#include "workbench/pictures/Artwork.h"

#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <array>

#include "platepages/WellPictures.h"

namespace GleanerSvc::Workbench {

namespace {

// A disc around the middle; its diameter as a share of the rectangle's.
void PaintDisc(QPainter& oPainter, const QRectF& oRect, double dShare, const QColor& oColour) {
    const double dRadius = std::min(oRect.width(), oRect.height()) * dShare / 2;
    oPainter.setPen(Qt::NoPen);
    oPainter.setBrush(oColour);
    oPainter.drawEllipse(oRect.center(), dRadius, dRadius);
}

void PaintEmpty(QPainter& oPainter, const QRectF& oRect) {
    PaintDisc(oPainter, oRect, 0.8, Ink::Dark);
    PaintDisc(oPainter, oRect, 0.62, Ink::Grey);
}

void PaintRaw(QPainter& oPainter, const QRectF& oRect) { PaintDisc(oPainter, oRect, 0.8, Ink::Dark); }

void PaintRawChecked(QPainter& oPainter, const QRectF& oRect) {
    PaintDisc(oPainter, oRect, 0.8, Ink::Dark);
    PaintDisc(oPainter, oRect, 0.64, Ink::Amber);
    PaintDisc(oPainter, oRect, 0.46, Ink::Yellow);
    PaintDisc(oPainter, oRect, 0.2, Ink::Grey);
}

void PaintWarning(QPainter& oPainter, const QRectF& oRect) {
    PaintDisc(oPainter, oRect, 0.8, Ink::Dark);
    const double dUnit = std::min(oRect.width(), oRect.height());
    const QPointF oMiddle = oRect.center();
    oPainter.setBrush(Ink::Yellow);
    oPainter.drawPolygon(
        QPolygonF({oMiddle + QPointF(0, -0.2 * dUnit), oMiddle + QPointF(0.2 * dUnit, 0.15 * dUnit),
                   oMiddle + QPointF(-0.2 * dUnit, 0.15 * dUnit)}));
}

void PaintWarningChecked(QPainter& oPainter, const QRectF& oRect) {
    PaintDisc(oPainter, oRect, 0.8, Ink::Amber);
    PaintDisc(oPainter, oRect, 0.5, Ink::Dark);
}

// A board whose corner at A1 is cut off.
void PaintPlate(QPainter& oPainter, const QRectF& oRect) {
    const double dCut = oRect.width() * 0.04;
    QPainterPath oBoard(oRect.topLeft() + QPointF(dCut, 0));
    oBoard.lineTo(oRect.topRight());
    oBoard.lineTo(oRect.bottomRight());
    oBoard.lineTo(oRect.bottomLeft());
    oBoard.lineTo(oRect.topLeft() + QPointF(0, dCut));
    oBoard.closeSubpath();
    oPainter.setPen(QPen(Ink::Dark, oRect.width() * 0.003));
    oPainter.setBrush(Ink::Board);
    oPainter.drawPath(oBoard);
}

// Two arrows in one: across all columns and down all rows.
void PaintAllWells(QPainter& oPainter, const QRectF& oRect) {
    oPainter.setPen(Qt::NoPen);
    oPainter.setBrush(Ink::Dark);
    oPainter.drawPolygon(QPolygonF({oRect.topLeft(), oRect.topRight(), oRect.bottomLeft()}));
}

struct Piece {
    std::string_view sName;
    void (*fnPaint)(QPainter&, const QRectF&);
};

constexpr std::array Pieces = {
    Piece{WellPicture::Empty, PaintEmpty},
    Piece{WellPicture::Raw, PaintRaw},
    Piece{WellPicture::RawChecked, PaintRawChecked},
    Piece{WellPicture::Warning, PaintWarning},
    Piece{WellPicture::WarningChecked, PaintWarningChecked},
    Piece{"PlateBackground", PaintPlate},
    Piece{"AllWells", PaintAllWells},
};

} // namespace

void PaintArtwork(QPainter& oPainter, const QRectF& oRect, std::string_view sName) {
    const auto* pPiece = std::find_if(Pieces.begin(), Pieces.end(),
                                      [sName](const Piece& oPiece) { return oPiece.sName == sName; });
    if (pPiece == Pieces.end()) return;
    oPainter.save();
    oPainter.setRenderHint(QPainter::Antialiasing);
    pPiece->fnPaint(oPainter, oRect);
    oPainter.restore();
}

} // namespace GleanerSvc::Workbench
