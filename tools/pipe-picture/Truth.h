#pragma once

#include "Scene.h"

#include <QJsonObject>

namespace PipePicture {

/**
 * Everything that is known about a picture: its frames, the camera, the pipe, and for each thing to
 * measure the true value with the places in the picture and in the pipe frame where it is measured.
 */
QJsonObject truthOf(const SceneSettings &scene, const QString &pictureName);

} // namespace PipePicture
