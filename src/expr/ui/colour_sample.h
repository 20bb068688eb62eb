// Samples of the colours that highlight formulas give.
#pragma once

#include <QIcon>
#include <QPalette>
#include <cstddef>

namespace vrel {

/// A sample of a colour, by its position in the list of colours; none for the first one, which
/// leaves cells as they are.
QIcon colourSample(std::size_t colour, const QPalette& palette, QSize size);

}  // namespace vrel
