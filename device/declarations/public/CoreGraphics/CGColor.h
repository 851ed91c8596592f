#pragma once

typedef struct CGColor* CGColorRef;
