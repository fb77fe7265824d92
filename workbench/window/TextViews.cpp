// Labels and text boxes.
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextOption>

#include <algorithm>

#include "workbench/window/ControlViews.h"
#include "workbench/window/HotZone.h"

namespace GleanerSvc::Workbench {

namespace {

// A caption stands at the top of its place and wraps at blanks. A screen's font may be wider than the
// design's: a line that would be cut is drawn narrower, as far as it stays readable.
class CaptionWidget final : public QWidget {
  public:
    using QWidget::QWidget;

    void Caption(const QString& sCaption) {
        m_sCaption = sCaption;
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*pEvent*/) override {
        QPainter oPainter(this);
        const bool bOneLine = height() < 2 * fontMetrics().height();
        if (bOneLine) oPainter.setFont(FittingFont());
        oPainter.setPen(
            palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        QTextOption oWrap(Qt::AlignLeft | Qt::AlignTop);
        oWrap.setWrapMode(bOneLine ? QTextOption::NoWrap : QTextOption::WordWrap);
        oPainter.drawText(QRectF(rect()), m_sCaption, oWrap);
    }

  private:
    // Letters are as wide as whole pixels allow, so what fits is found by trying.
    QFont FittingFont() const {
        constexpr int Narrowest = 70; // percent
        constexpr int Step = 2;
        QFont oFont = font();
        for (int nStretch = 100; nStretch >= Narrowest; nStretch -= Step) {
            oFont.setStretch(nStretch);
            if (QFontMetrics(oFont).horizontalAdvance(m_sCaption) <= width()) break;
        }
        return oFont;
    }

    QString m_sCaption;
};

class LabelView final : public ControlView {
  public:
    LabelView(Label& oLabel, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oLabel, new CaptionWidget(pParent), oContext), m_oLabel(oLabel),
          m_oShown(static_cast<CaptionWidget&>(Widget())) {
        m_oShown.setAttribute(Qt::WA_TransparentForMouseEvents);
    }

  protected:
    std::vector<Property> OwnProperties() const override { return {Property::Caption}; }
    void Mirror(Property eProperty) override {
        if (eProperty == Property::Caption) m_oShown.Caption(QString::fromStdString(m_oLabel.Caption()));
    }
    QString OwnName() const override { return QString::fromStdString(m_oLabel.Caption()); }

  private:
    Label& m_oLabel;
    CaptionWidget& m_oShown;
};

// A label that somebody waits to be clicked is a zone over what is drawn beneath it.
class LabelZone final : public ControlView {
  public:
    LabelZone(Label& oLabel, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oLabel, new HotZone(pParent), oContext), m_oLabel(oLabel) {
        auto& oZone = static_cast<HotZone&>(Widget());
        oZone.OnClick = [this](std::int16_t iButton) {
            if (iButton == MouseButton::Left) Gesture([this] { m_oLabel.ClickIt(); });
        };
    }

  private:
    Label& m_oLabel;
};

class TextBoxView final : public ControlView {
  public:
    TextBoxView(TextBox& oText, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oText, new QPlainTextEdit(pParent), oContext), m_oText(oText),
          m_oShown(static_cast<QPlainTextEdit&>(Widget())) {
        m_oShown.setTabChangesFocus(true);
        m_oShown.setUndoRedoEnabled(false);
        QObject::connect(&m_oShown, &QPlainTextEdit::textChanged, &m_oShown, [this] {
            if (m_bMirroring) return;
            m_bMirroring = true;
            Gesture([this] { m_oText.Type(m_oShown.toPlainText().toStdString()); });
            m_nShown = m_oText.TextLength();
            m_bMirroring = false;
        });
    }

  protected:
    std::vector<Property> OwnProperties() const override { return {Property::Text}; }
    void Mirror(Property eProperty) override {
        if (m_bMirroring) return;
        m_bMirroring = true;
        if (eProperty == Property::Text) m_oShown.setPlainText(QString::fromStdString(m_oText.Text()));
        if (eProperty == Property::TextAppended) Append();
        if (eProperty == Property::Text || eProperty == Property::TextAppended)
            m_nShown = m_oText.TextLength();
        if (eProperty == Property::Caret && m_oText.SelStart() == m_oText.TextLength())
            m_oShown.verticalScrollBar()->setValue(m_oShown.verticalScrollBar()->maximum());
        m_bMirroring = false;
    }

  private:
    // Costs as much as what is new.
    void Append() {
        QTextCursor oEnd(m_oShown.document());
        oEnd.movePosition(QTextCursor::End);
        oEnd.insertText(QString::fromStdString(m_oText.Text().substr(m_nShown)));
    }

    TextBox& m_oText;
    QPlainTextEdit& m_oShown;
    std::size_t m_nShown = 0; // bytes of the text
    bool m_bMirroring = false;
};

} // namespace

MadeView MakeView(Label& oLabel, QWidget* pParent, const ViewContext& oContext) {
    if (oLabel.Click.SubscriberCount() > 0) return std::make_unique<LabelZone>(oLabel, pParent, oContext);
    return std::make_unique<LabelView>(oLabel, pParent, oContext);
}

MadeView MakeView(TextBox& oText, QWidget* pParent, const ViewContext& oContext) {
    return std::make_unique<TextBoxView>(oText, pParent, oContext);
}

} // namespace GleanerSvc::Workbench
