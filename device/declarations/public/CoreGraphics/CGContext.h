#pragma once

typedef struct CGContext* CGContextRef;
