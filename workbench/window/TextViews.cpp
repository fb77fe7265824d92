// Labels and text boxes.
#include <QPainter>
#include <QPlainTextEdit>
#include <QTextOption>

#include "workbench/window/ControlViews.h"
#include "workbench/window/FittingFont.h"
#include "workbench/window/HotZone.h"
#include "workbench/window/PlatePart.h"
#include "workbench/window/ShownText.h"
#include "workbench/window/SpokenWidget.h"

namespace GleanerSvc::Workbench {

namespace {

// A caption stands at the top of its place and wraps at blanks.
class CaptionWidget final : public SpokenWidget {
  public:
    explicit CaptionWidget(QWidget* pParent) : SpokenWidget(pParent, QAccessible::StaticText) {}

    void Caption(const QString& sCaption) {
        m_sCaption = sCaption;
        update();
    }

  protected:
    void paintEvent(QPaintEvent* /*pEvent*/) override {
        QPainter oPainter(this);
        const bool bOneLine = height() < 2 * fontMetrics().height();
        if (bOneLine) oPainter.setFont(FittingFont(font(), m_sCaption, width() - 1));
        oPainter.setPen(
            palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
        QTextOption oWrap(Qt::AlignLeft | Qt::AlignTop);
        oWrap.setWrapMode(bOneLine ? QTextOption::NoWrap : QTextOption::WordWrap);
        oPainter.drawText(QRectF(rect()), m_sCaption, oWrap);
    }

  private:
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

  protected:
    QString OwnName() const override { return HeadingName(m_oLabel); }

  private:
    Label& m_oLabel;
};

// The box is read, and copied from: the model has no gesture that would take back what was typed.
class TextBoxView final : public ControlView {
  public:
    TextBoxView(TextBox& oText, QWidget* pParent, const ViewContext& oContext)
        : ControlView(oText, new QPlainTextEdit(pParent), oContext), m_oText(oText),
          m_oShown(static_cast<QPlainTextEdit&>(Widget())) {
        m_oShown.setTabChangesFocus(true);
        m_oShown.setUndoRedoEnabled(false);
        m_oShown.setReadOnly(true);
        m_oShown.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }

  protected:
    std::vector<Property> OwnProperties() const override { return {Property::Text}; }
    void Mirror(Property eProperty) override {
        switch (eProperty) {
        case Property::Text:
            m_oShown.setPlainText(ShownText(m_oText.Text()));
            m_nShown = m_oText.TextLength();
            return ShowCaret();
        case Property::TextAppended:
            return Append();
        case Property::Caret:
            return ShowCaret();
        case Property::Refresh:
            return m_oShown.viewport()->repaint();
        default:
            return;
        }
    }

  private:
    // Costs as much as what is new.
    void Append() {
        QTextCursor oEnd(m_oShown.document());
        oEnd.movePosition(QTextCursor::End);
        oEnd.insertText(QString::fromStdString(m_oText.Text().substr(m_nShown)));
        m_nShown = m_oText.TextLength();
    }
    // A line's end is one character in the box, however it is written.
    void ShowCaret() {
        QTextCursor oCaret(m_oShown.document());
        const bool bAtEnd = m_oText.SelStart() == m_oText.TextLength();
        const std::string_view sBefore = std::string_view(m_oText.Text()).substr(0, m_oText.SelStart());
        if (bAtEnd)
            oCaret.movePosition(QTextCursor::End);
        else
            oCaret.setPosition(static_cast<int>(ShownText(sBefore).replace("\r\n", "\n").size()));
        m_oShown.setTextCursor(oCaret);
        m_oShown.ensureCursorVisible();
    }

    TextBox& m_oText;
    QPlainTextEdit& m_oShown;
    std::size_t m_nShown = 0; // bytes of the text
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
