#include "launcher/error_log.h"
