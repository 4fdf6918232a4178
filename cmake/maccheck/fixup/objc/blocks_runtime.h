#pragma once
#include <Block.h>
