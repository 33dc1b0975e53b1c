#pragma once

#include <QString>

/** The application's style, palette and a picture of some widgets under them, as text to compare. */
QString lookReport();
