#pragma once

#include "Gui/Icons.h"

#include <QIconEngine>

namespace Korvex::GUI
{

/// Paints an icon in the colour that its role has at that moment.
class ThemeIconEngine final : public QIconEngine
{
public:
    ThemeIconEngine(IconKind kind, ColorRole role);

    void paint(QPainter* painter, QRect const& place, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(QSize const& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override;
    QString key() const override;

private:
    IconKind m_kind;
    ColorRole m_role;
};

} // namespace Korvex::GUI
