#pragma once

#include "zalento/render/MiniGL.h"

namespace Drevon::Zalento {

/** Saves a camera's model-view matrix and restores it on every way out of a block. */
class ModelViewScope
{
public:
    /** Keeps the matrix of this camera. */
    explicit ModelViewScope(MiniGL &camera)
        : m_camera(camera)
    {
        m_camera.pushModelViewMatrix();
    }
    ~ModelViewScope() { m_camera.popModelViewMatrix(); }
    ModelViewScope(const ModelViewScope &) = delete;
    ModelViewScope &operator=(const ModelViewScope &) = delete;

private:
    MiniGL &m_camera;
};

} // namespace Drevon::Zalento
