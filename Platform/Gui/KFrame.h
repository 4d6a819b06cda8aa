#pragma once

#include "Gui/Export.h"

#include <QFrame>

/// A frame in the host's look: what groups and panels are made of. Otherwise a QFrame.
class KORVEX_GUI_API KFrame : public QFrame
{
    Q_OBJECT
public:
    explicit KFrame(QWidget* parent = nullptr);
    ~KFrame() override;
};
