#include "Gui/KFrame.h"

KFrame::KFrame(QWidget* parent) : QFrame(parent) {}

KFrame::~KFrame() = default;
