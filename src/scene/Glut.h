#pragma once

// The one way in to GLUT, which draws bitmap text and nothing else here. The program opens no GLUT window.
// GLUT ends the process when a font is used before glutInit, so ask glutGet(GLUT_INIT_STATE) first.
#include "assets/Gl.h"
// GL has to come first.
#include <GL/freeglut.h>
