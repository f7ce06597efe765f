#pragma once

// The one way in to GL: GLEW has to come before any other GL header.
#include <GL/glew.h>
#include <GL/glu.h>
