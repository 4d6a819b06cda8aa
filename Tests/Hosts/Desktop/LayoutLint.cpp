#include "Hosts/Desktop/LayoutLint.h"

#include "Desktop/Preview/HintLabel.h"

#include "Gui/ColorPickerButton.h"
#include "Gui/DropDownButton.h"
#include "Gui/KLabel.h"
#include "Gui/ModalPopup.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSplitterHandle>
#include <QStyle>
#include <QTextDocument>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace Korvex::Testing
{

namespace
{

/// Of what one looks at; below it, text is hard to read. Anti-aliasing takes a little from the 4.5 that is asked for.
constexpr double LEAST_CONTRAST = 3.8;
/// Pixels by which measures of fonts may be off.
constexpr int ROUNDING = 1;

QString GetText(QWidget const& widget)
{
    if (auto const* label = qobject_cast<QLabel const*>(&widget))
        return label->text().trimmed();
    if (auto const* button = qobject_cast<QAbstractButton const*>(&widget))
        return button->text().trimmed();
    return {};
}

std::string Describe(QWidget const& widget)
{
    QWidget const* named = &widget;
    while (named->objectName().isEmpty() && named->parentWidget() != nullptr)
        named = named->parentWidget();
    return widget.metaObject()->className() + (named == &widget ? std::string(" ") : std::string(" in ")) +
           named->objectName().toStdString() + " \"" + GetText(widget).toStdString() + "\"";
}

std::string Describe(QSize const& size)
{
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

class Lint
{
public:
    explicit Lint(QWidget& window)
        : m_window(window),
          m_picture(window.grab().toImage().convertToFormat(QImage::Format_RGB32))
    {
        Visit(window);
    }

    [[nodiscard]] std::vector<std::string> Take() { return std::move(m_faults); }

private:
    void Visit(QWidget& widget)
    {
        CheckRoom(widget);
        CheckContrast(widget);
        CheckScrolling(widget);
        std::vector<QWidget*> children;
        for (QObject* child : widget.children())
            if (auto* part = qobject_cast<QWidget*>(child); part != nullptr && part->isVisible() && !part->isWindow())
                children.push_back(part);
        CheckSiblings(widget, children);
        for (QWidget* child : children)
            Visit(*child);
    }

    void Report(QWidget const& widget, std::string const& fault)
    {
        m_faults.push_back(Describe(widget) + ": " + fault);
    }

    void CheckRoom(QWidget const& widget)
    {
        QSize const need = FindNeed(widget);
        if (need.width() > widget.width() + ROUNDING || need.height() > widget.height() + ROUNDING)
            Report(widget, "needs " + Describe(need) + ", has " + Describe(widget.size()));
        if (auto const* bar = qobject_cast<QMenuBar const*>(&widget))
        {
            for (QAction* action : bar->actions())
                if (action->isVisible() && !bar->rect().contains(bar->actionGeometry(action)))
                    Report(widget, "has no room for \"" + action->text().toStdString() + "\"");
        }
        if (auto const* field = qobject_cast<QLineEdit const*>(&widget))
            CheckField(*field);
    }

    /// To be seen whole; invalid where there is no text or the widget shortens it itself.
    static QSize FindNeed(QWidget const& widget)
    {
        auto const* label = qobject_cast<QLabel const*>(&widget);
        auto const* tool = qobject_cast<QToolButton const*>(&widget);
        bool const isIconOnly =
            tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull();
        bool const isShortened = (qobject_cast<KLabel const*>(&widget) != nullptr && !label->wordWrap()) ||
                                 qobject_cast<Desktop::HintLabel const*>(&widget) != nullptr ||
                                 qobject_cast<GUI::DropDownButton const*>(&widget) != nullptr ||
                                 qobject_cast<GUI::ColorPickerButton const*>(&widget) != nullptr;
        if (GetText(widget).isEmpty() || isShortened || isIconOnly)
            return {};
        if (label != nullptr && label->wordWrap())
            return {FindWidestWord(*label), label->heightForWidth(label->width())};
        return widget.sizeHint();
    }

    static int FindWidestWord(QLabel const& label)
    {
        QString text = label.text();
        if (Qt::mightBeRichText(text))
        {
            QTextDocument document;
            document.setHtml(text);
            text = document.toPlainText();
        }
        int widest = 0;
        for (QString const& word : text.split(QRegExp(QStringLiteral("\\s+"))))
        {
            // Scripts without spaces are broken between any two letters.
            bool const isUnbroken =
                std::all_of(word.begin(), word.end(),
                            [](QChar letter) {
                                return letter.script() < QChar::Script_Hiragana || letter.script() > QChar::Script_Han;
                            });
            if (isUnbroken)
                widest = std::max(widest, label.fontMetrics().horizontalAdvance(word));
        }
        return widest + label.width() - label.contentsRect().width();
    }

    /// What cannot be seen of a field that the user has not typed into.
    void CheckField(QLineEdit const& field)
    {
        QString const text = field.text().isEmpty() ? field.placeholderText() : field.displayText();
        bool const isOfSpinBox = field.objectName() == QLatin1String("qt_spinbox_lineedit");
        if (field.isModified() || (!isOfSpinBox && !field.text().isEmpty()))
            return;
        int const need = field.fontMetrics().horizontalAdvance(text);
        if (need > field.contentsRect().width() + ROUNDING)
            Report(field, "needs " + std::to_string(need) + " pixels for \"" + text.toStdString() + "\", has " +
                              std::to_string(field.contentsRect().width()));
    }

    void CheckScrolling(QWidget const& widget)
    {
        auto const* area = qobject_cast<QAbstractScrollArea const*>(&widget);
        if (area != nullptr && area->horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff &&
            area->horizontalScrollBar()->maximum() > 0)
            Report(widget, "is too narrow by " + std::to_string(area->horizontalScrollBar()->maximum()) + " pixels");
    }

    /// Layers that cover everything on purpose, and handles that reach over their neighbours.
    static bool IsLayer(QWidget const& widget)
    {
        return qobject_cast<GUI::ModalPopup const*>(&widget) != nullptr ||
               qobject_cast<QSplitterHandle const*>(&widget) != nullptr || widget.inherits("QSizeGrip") ||
               widget.inherits("QFocusFrame") || widget.objectName() == QLatin1String("dropHighlight");
    }

    void CheckSiblings(QWidget const& parent, std::vector<QWidget*> const& children)
    {
        bool const isScrolled =
            parent.parentWidget() != nullptr && parent.parentWidget()->inherits("QAbstractScrollArea");
        for (std::size_t i = 0; i < children.size(); ++i)
        {
            QRect const place = children[i]->geometry();
            if (IsLayer(*children[i]) || place.isEmpty())
                continue;
            if (!isScrolled && !parent.rect().contains(place))
                Report(*children[i], "sticks out of its " + Describe(parent));
            for (std::size_t k = i + 1; k < children.size(); ++k)
                if (!IsLayer(*children[k]) && place.intersects(children[k]->geometry()))
                    Report(*children[i], "overlaps " + Describe(*children[k]));
        }
    }

    static double FindLuminance(QRgb color)
    {
        auto const toLinear = [](int component)
        {
            double const value = component / 255.0;
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * toLinear(qRed(color)) + 0.7152 * toLinear(qGreen(color)) + 0.0722 * toLinear(qBlue(color));
    }

    /// By the picture, because style sheets tell no colours: the most frequent one against the one furthest from it.
    void CheckContrast(QWidget const& widget)
    {
        constexpr int FRAME = 5; // borders stand out on their own
        auto const* label = qobject_cast<QLabel const*>(&widget);
        bool const isText = !GetText(widget).isEmpty() &&
                            qobject_cast<GUI::ColorPickerButton const*>(&widget) == nullptr &&
                            (label == nullptr || label->pixmap(Qt::ReturnByValue).isNull());
        if (!isText || !widget.isEnabled())
            return;
        QRect place(widget.mapTo(&m_window, QPoint()), widget.size());
        if (label == nullptr)
            place.adjust(FRAME, FRAME, -FRAME, -FRAME);
        place &= m_picture.rect();
        QRect seen = widget.visibleRegion().boundingRect();
        place &= seen.translated(widget.mapTo(&m_window, QPoint()));
        if (place.width() < FRAME || place.height() < FRAME || IsVeiled(widget))
            return;
        QHash<QRgb, int> counts;
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                ++counts[m_picture.pixel(x, y)];
        auto const most = std::max_element(counts.begin(), counts.end());
        double const behind = FindLuminance(most.key());
        double best = 1.0;
        for (auto color = counts.begin(); color != counts.end(); ++color)
        {
            double const before = FindLuminance(color.key());
            best = std::max(best, (std::max(behind, before) + 0.05) / (std::min(behind, before) + 0.05));
        }
        if (best < LEAST_CONTRAST)
            Report(widget, "has a contrast of " + std::to_string(best));
    }

    [[nodiscard]] bool IsVeiled(QWidget const& widget) const
    {
        for (auto const* popup : m_window.findChildren<GUI::ModalPopup*>())
            if (popup->isVisible() && !popup->isAncestorOf(&widget))
                return true;
        return false;
    }

    QWidget& m_window;
    QImage m_picture;
    std::vector<std::string> m_faults;
};

} // namespace

std::vector<std::string> FindLayoutFaults(QWidget& window)
{
    return Lint(window).Take();
}

} // namespace Korvex::Testing
