#include "citygml/SchemaContainers.h"
