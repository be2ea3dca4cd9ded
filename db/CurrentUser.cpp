// db/CurrentUser.cpp
#include "db/CurrentUser.h"

int currentUserId = 0;
FixedText<5> currentUserAbr;
