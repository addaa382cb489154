#include "BoardLog.h"

Q_LOGGING_CATEGORY(lcBoard, "orvane.board", QtInfoMsg)
