#include "OrvaneLog.h"

Q_LOGGING_CATEGORY(lcApp, "orvane.app", QtInfoMsg)
Q_LOGGING_CATEGORY(lcMotion, "orvane.motion", QtInfoMsg)
Q_LOGGING_CATEGORY(lcParams, "orvane.params", QtInfoMsg)
Q_LOGGING_CATEGORY(lcUi, "orvane.ui", QtInfoMsg)
