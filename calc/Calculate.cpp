#include "Calculate.h"
