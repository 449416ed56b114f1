// Gives the meta-object a home.
#include "zalento/item/CommonConstants.h"
