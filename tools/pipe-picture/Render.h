#pragma once

#include "Scene.h"

#include <QImage>

namespace PipePicture {

/** Draws the picture of a scene, 8 bits a colour. The same scene always gives the same bytes. */
QImage renderPicture(const SceneSettings &scene);

} // namespace PipePicture
