#include "workbench/pictures/Artwork.h"

#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <array>

#include "pagebind/Well.h"
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

// The letters of the rows and the numbers of the columns; places in twips of a board of 4935 by 3975.
void PaintPlateMarks(QPainter& oPainter, const QRectF& oRect) {
    const double dScale = oRect.width() / 4935;
    const auto Mark = [&](double dLeft, double dTop, const QString& sText) {
        const QRectF oMark(oRect.topLeft() + QPointF(dLeft, dTop) * dScale, QSizeF(360, 360) * dScale);
        oPainter.drawText(oMark, Qt::AlignCenter, sText);
    };
    QFont oFont("DejaVu Sans");
    oFont.setPixelSize(std::max(1, static_cast<int>(165 * dScale)));
    oPainter.setFont(oFont);
    oPainter.setPen(Ink::Dark.darker());
    for (int nRow = 0; nRow < PlateRows; ++nRow) Mark(60, 405 * nRow + 475, QChar('A' + nRow));
    for (int nCol = 0; nCol < PlateCols; ++nCol) Mark(362 * nCol + 447, 90, QString::number(nCol + 1));
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
    PaintPlateMarks(oPainter, oRect);
}

// Peaks over a base line, in the colours of dyes: what raw data look like, and with bars beneath what results
// do.
void PaintBanner(QPainter& oPainter, const QRectF& oRect, const QString& sTitle, bool bCalled) {
    struct Hill {
        double dPlace = 0;
        double dHeight = 0;
        QColor oColour;
    };
    const std::array aoHills = {Hill{0.30, 0.55, QColor(0x2B, 0x6C, 0xB0)},
                                Hill{0.41, 0.80, QColor(0x2E, 0x8B, 0x57)},
                                Hill{0.55, 0.45, Ink::Amber},
                                Hill{0.66, 0.70, QColor(0xC0, 0x39, 0x2B)},
                                Hill{0.80, 0.60, QColor(0x2B, 0x6C, 0xB0)},
                                Hill{0.91, 0.35, QColor(0x2E, 0x8B, 0x57)}};
    oPainter.setPen(Qt::NoPen);
    oPainter.setBrush(Ink::Board);
    oPainter.drawRoundedRect(oRect, oRect.height() * 0.06, oRect.height() * 0.06);
    const double dBase = oRect.top() + oRect.height() * 0.82;
    for (const Hill& oHill : aoHills) {
        const double dMiddle = oRect.left() + oRect.width() * oHill.dPlace;
        const double dWidth = oRect.width() * 0.05;
        QPainterPath oPeak(QPointF(dMiddle - dWidth, dBase));
        const double dTop = dBase - oRect.height() * 0.85 * oHill.dHeight;
        oPeak.cubicTo(dMiddle - dWidth / 3, dBase, dMiddle - dWidth / 3, dTop, dMiddle, dTop);
        oPeak.cubicTo(dMiddle + dWidth / 3, dTop, dMiddle + dWidth / 3, dBase, dMiddle + dWidth, dBase);
        oPainter.setBrush(oHill.oColour);
        oPainter.drawPath(oPeak);
        if (bCalled)
            oPainter.drawRect(QRectF(dMiddle - dWidth / 3, dBase + oRect.height() * 0.05, dWidth / 1.5,
                                     oRect.height() * 0.06));
    }
    QFont oFont("DejaVu Sans");
    oFont.setPixelSize(std::max(1, static_cast<int>(oRect.height() * 0.2)));
    oPainter.setFont(oFont);
    oPainter.setPen(Ink::Dark.darker());
    oPainter.drawText(oRect.adjusted(oRect.height() * 0.12, oRect.height() * 0.08, 0, 0),
                      Qt::AlignLeft | Qt::AlignTop, sTitle);
}

void PaintRawBanner(QPainter& oPainter, const QRectF& oRect) {
    PaintBanner(oPainter, oRect, "Raw data", false);
}

void PaintResultBanner(QPainter& oPainter, const QRectF& oRect) {
    PaintBanner(oPainter, oRect, "Results", true);
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
    Piece{"RawDataBanner", PaintRawBanner},
    Piece{"ResultDataBanner", PaintResultBanner},
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
