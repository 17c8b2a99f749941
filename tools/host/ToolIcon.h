#pragma once

#include "DrawingCanvas.h"

#include <QIcon>

/// The pictures on the tool buttons.
namespace ToolIcon
{
QIcon make(DrawingCanvas::Tool tool);
}
