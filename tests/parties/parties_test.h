#pragma once

#include "db/new_row.h"
#include "parties/customer_record.h"
#include "support/form_test.h"
