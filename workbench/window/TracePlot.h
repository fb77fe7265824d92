// The electropherogram on the screen: drawn out, moved and picked from by mouse and by its operations.
#pragma once

#include <qcustomplot.h>

#include <optional>

#include "pagebind/Event.h"
#include "workbench/pictures/TracePicture.h"

namespace GleanerSvc::Workbench {

class TracePlot final : public QCustomPlot {
  public:
    // What the view refers to outlives the plot.
    TracePlot(const TraceView& oView, QWidget* pParent);

    const TraceLook& Look() const { return m_oLook; }
    void Look(const TraceLook& oLook); // the range and the heights on show stay

    // The part of the axis on show; what lies beyond the trace is never shown.
    double First() const { return m_dFirst; }
    double Last() const { return m_dLast; }
    void Show(double dFirst, double dLast);
    void Zoom(double dFactor); // above 1 draws the axis out about its middle
    void Pan(double dShare);   // of what is on show, to the right
    void ShowAll();

    void Raise(double dFactor);                  // above 1 makes each peak higher
    void FitHeights();                           // each dye to its highest peak on show
    double HighestShown(std::size_t nDye) const; // RFU at the top of the dye's plot; 0 where it is hidden

    // Marks a peak and brings it on show; none takes the mark away.
    void Mark(std::optional<std::size_t> oPeak);
    Event<std::size_t> OnPicked; // the peak that was clicked at

    QImage Picture(const std::string& sTitle) const; // as it stands, twice as fine

  protected:
    void resizeEvent(QResizeEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

  private:
    void ZoomAbout(double dFactor, double dAt);
    void ShowRange();
    void DrawMark();
    void Pick(const QPointF& oPoint);
    QCPAxisRect* RectOf(std::size_t nDye) const; // nothing where it is hidden
    double PlaceAt(double dPixel) const;

    TraceView m_oView;
    TraceLook m_oLook;
    double m_dFirst;
    double m_dLast;
    std::optional<std::size_t> m_oMarked;
    std::optional<double> m_oDragged; // where the pointer was pressed, in pixels
    double m_dDragFirst = 0;
    bool m_bMoved = false;
};

} // namespace GleanerSvc::Workbench
