#pragma once

#include "source/JavaOutline.h"

namespace tarnwick {

class JavaSourcefile;

/// Enters into the model what a newer reading has found: the package, and all types at the top and their members under
/// the names of their class files. Whatever has a main method that a JDK of this version starts is a class. Only
/// types at the top count with their main methods.
void enterTypes(const JavaOutline& outline, int javaVersion, JavaSourcefile& file);

}  // namespace tarnwick
