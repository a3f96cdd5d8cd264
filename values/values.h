#pragma once

/// Everything that the platform libraries offer, in one include.

#include "values/Array.h"
#include "values/Blob.h"
#include "values/Boolean.h"
#include "values/BufferDescriptor.h"
#include "values/ConstVisitor.h"
#include "values/Float.h"
#include "values/Integer.h"
#include "values/Null.h"
#include "values/Object.h"
#include "values/PtrMap.h"
#include "values/PtrVector.h"
#include "values/Ref.h"
#include "values/String.h"
#include "values/Value.h"
#include "values/ValueType.h"
#include "values/getUriSplitted.h"
