#pragma once
#include <ForeignBase.h>
