#include "ZTInitializerOption.h"

ZTInitializerOption::ZTInitializerOption(Flags theFlags) : myFlags(theFlags)
{}

ZTInitializerOption::ZTInitializerOption(Flag theFlag) : myFlags(theFlag)
{}
