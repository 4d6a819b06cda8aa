#pragma once

#include <QProxyStyle>

namespace Korvex::GUI
{

/// What the style sheet cannot say: the icons of Qt's own dialogs, and behaviour. The style sheet lies over it.
class HostStyle final : public QProxyStyle
{
    Q_OBJECT
public:
    HostStyle();

    QIcon standardIcon(StandardPixmap pixmap, QStyleOption const* option, QWidget const* widget) const override;
    int styleHint(StyleHint hint, QStyleOption const* option, QWidget const* widget,
                  QStyleHintReturn* returnData) const override;
    int pixelMetric(PixelMetric metric, QStyleOption const* option, QWidget const* widget) const override;
    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    using QProxyStyle::unpolish;
    void unpolish(QWidget* widget) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Korvex::GUI
