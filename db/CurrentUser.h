// db/CurrentUser.h
#pragma once

#include "util/FixedText.h"

/// The current user, set by the embedding application: number (USERDEF.user_id) and abbreviation.
extern int currentUserId;
extern FixedText<5> currentUserAbr;
