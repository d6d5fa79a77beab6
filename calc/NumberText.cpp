#include "NumberText.h"
