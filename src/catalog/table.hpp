// table.hpp: every family of the library, one row each, as constant data. The only place where a function is declared by hand.
//
// A row stands for several forms that share arguments, cost and formula; expand() in catalog.cpp turns rows into functions.
//   forms      operand tags as they stand in the name. `a` behind a letter: an array of such objects
//   arguments  the argument list in order. src, src1, dst, ... stand for an operand's whole group (pointer, strides or shifts);
//              val for a constant: by value, or in memory where the form says `ca`. height falls away where no operand is a
//              matrix, count where none is an array. A name behind a colon is the number of columns of the stored operand
//   cost       32-bit wrapping; c = count, w = width, h = height, n = order, or the length of a vector. Empty: always serial
//   limits     cost at which the driver takes over: contiguous/strided for 32f 32f_L 32f_P 64f 64f_L 64f_P
//   formula    the template that computes it. Empty: not built yet, and then no trace of the family is in the library. $n: the
//              number of elements of a fixed form's vectors
//   meaning    documentation. $a $b $c: the source objects, $d: the destination, $a_ $b_ $d_: their elements (i, j) or (j)
#pragma once
#include <string_view>

namespace zelm::catalog {

enum class Kernels {
  by_stride,  // one for contiguous elements, one for any element stride (_S2, _LS2), one for element tables (_P)
  one,        // one per layout, for every stride
  none,       // the entry does the work
};

struct Row {
  std::string_view operation, forms, arguments;
  std::string_view cost, limits;
  std::string_view room, formula;
  std::string_view meaning, shapes;
  std::string_view statuses = "";  // what the kernels can return besides zelStsOk
  std::string_view scratch = "";   // bytes of pBuffer that a driver allocates for each thread; E = element size
  std::string_view mismatch = "";  // condition of zelStsSizeMismatch
  Kernels kernels = Kernels::by_stride;
  std::string_view order_one = "";  // the formula with which the entry answers order 1 itself
};

inline constexpr std::string_view kMatrixLimits = "3000/2000 2000/2000 2000 2000/2000 2000/2000 2000";
inline constexpr std::string_view kVectorLimits = "4801/4801 2501/2501 1501 1401/1401 2501/2501 1501";
inline constexpr std::string_view kScaleLimits = "2101/2101 1201/1201 651 2101/2101 1201/1201 651";
inline constexpr std::string_view kProductLimits = "2501/1441 3601/1441 1441 3601/1441 3601/1441 1441";
inline constexpr std::string_view kGaxpyLimits = "7001/5001 7001/501 4501 5001/5001 6001/5001 7001";
inline constexpr std::string_view kDotLimits = "5001/2621 2401/2401 2401 3501/2001 4201/3301 2001";
inline constexpr std::string_view kSaxpyLimits = "3001/2001 1501/1001 1201 3001/1201 1001/1001 1201";
inline constexpr std::string_view kCombinationLimits = "4501/4501 4501/3751 4501 4501/4501 4501/4501 4501";
inline constexpr std::string_view kQRLimits = "2801/2801 1801/1801 1801 2801/2801 1801/1801 1801";

inline constexpr std::string_view kBinary = "src1 src2 dst width height count";
inline constexpr std::string_view kScaled = "src val dst width height count";
inline constexpr std::string_view kMatrixShapes = "D height x width; a transposed operand is stored as width x height";
inline constexpr std::string_view kVectorShapes = "vectors of width elements";
inline constexpr std::string_view kCopiedMatrices = "matrices of height x width. With count 1 no stride0 is looked at";
inline constexpr std::string_view kCopiedVectors = "vectors of width elements. With count 1 no stride0 is looked at";
inline constexpr std::string_view kMulArguments = "src1:width1 width1 height1 src2:width2 width2 height2 dst:product count";
inline constexpr std::string_view kMulShapes = "sources as stored: height1 x width1, height2 x width2";
inline constexpr std::string_view kMulVectorShapes = "A height x width as stored; b src2Len elements";
inline constexpr std::string_view kSquareShapes = "square matrices of order widthHeight";
inline constexpr std::string_view kScratchShapes =
    "square matrices of order n = widthHeight; pBuffer n*n elements and n ints, at any address";
inline constexpr std::string_view kSolveShapes = "A of order widthHeight; b and x widthHeight elements";

inline constexpr std::string_view kFixedArrays = "strides of any size and sign; a count below 1 does nothing; D[k] may be A[k]";

inline constexpr std::string_view kSymmetricBuffer =
    "square matrices of order n = widthHeight; pBuffer n * n elements of the matrices' type";
inline constexpr std::string_view kVectorBuffer =
    "square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives. Where an "
    "eigenvalue meets a complex pair to within rounding, the call ends with that object: its values are there, its vectors "
    "are left alone, and the status is zelStsFailure for a complex eigenvalue, but zelStsOk for a real one";
inline constexpr std::string_view kVectorStatuses = "zelStsFailure zelStsNoConvergence";

inline constexpr Row kRows[] = {
    // Element-wise: sums and differences of objects
    {"Add", "mm tm tt", kBinary, "", "", "elementwise", "combine<Plus>", "$d_ = $a_ + $b_", kMatrixShapes},
    {"Add", "vv", kBinary, "", "", "elementwise", "combine<Plus>", "$d_ = $a_ + $b_", kVectorShapes},
    {"Add", "mam mat tam tat", kBinary, "(2*c+1)*w*h", kMatrixLimits, "elementwise", "combine<Plus>", "$d_ = $a_ + $b_",
     kMatrixShapes},
    {"Add", "mama tama tata", kBinary, "3*c*w*h", kMatrixLimits, "elementwise", "combine<Plus>", "$d_ = $a_ + $b_",
     kMatrixShapes},
    {"Add", "vav", kBinary, "(2*c+1)*n", kVectorLimits, "elementwise", "combine<Plus>", "$d_ = $a_ + $b_", kVectorShapes},
    {"Add", "vava", kBinary, "3*c*n", kVectorLimits, "elementwise", "combine<Plus>", "$d_ = $a_ + $b_", kVectorShapes},
    {"Sub", "mm mt tm tt", kBinary, "", "", "elementwise", "combine<Minus>", "$d_ = $a_ - $b_", kMatrixShapes},
    {"Sub", "vv", kBinary, "", "", "elementwise", "combine<Minus>", "$d_ = $a_ - $b_", kVectorShapes},
    {"Sub", "mam mat tam tat", kBinary, "(2*c+1)*w*h", kMatrixLimits, "elementwise", "combine<Minus>", "$d_ = $a_ - $b_",
     kMatrixShapes},
    {"Sub", "mma mta tma tta", kBinary, "(2*c+1)*w*h", kMatrixLimits, "elementwise", "combine<Minus>", "$d_ = $a_ - $b_",
     kMatrixShapes},
    {"Sub", "mama mata tama tata", kBinary, "3*c*w*h", kMatrixLimits, "elementwise", "combine<Minus>", "$d_ = $a_ - $b_",
     kMatrixShapes},
    {"Sub", "vav vva", kBinary, "(2*c+1)*n", kVectorLimits, "elementwise", "combine<Minus>", "$d_ = $a_ - $b_", kVectorShapes},
    {"Sub", "vava", kBinary, "3*c*n", kVectorLimits, "elementwise", "combine<Minus>", "$d_ = $a_ - $b_", kVectorShapes},

    // Element-wise: with a constant
    {"Add", "vc", kScaled, "", "", "elementwise", "combine<Plus>", "$d_ = $a_ + $b", kVectorShapes},
    {"Add", "vac", kScaled, "(2*c+1)*n", kVectorLimits, "elementwise", "combine<Plus>", "$d_ = $a_ + $b", kVectorShapes},
    {"Add", "vca", kScaled, "c*n+c+n", kVectorLimits, "elementwise", "combine<Plus>", "$d_ = $a_ + $b", kVectorShapes},
    {"Add", "vaca", kScaled, "(2*n+1)*c", kVectorLimits, "elementwise", "combine<Plus>", "$d_ = $a_ + $b", kVectorShapes},
    {"Sub", "vc", kScaled, "", "", "elementwise", "combine<Minus>", "$d_ = $a_ - $b", kVectorShapes},
    {"Sub", "vac", kScaled, "(2*c+1)*n", kVectorLimits, "elementwise", "combine<Minus>", "$d_ = $a_ - $b", kVectorShapes},
    {"Sub", "vca", kScaled, "c*n+c+n", kVectorLimits, "elementwise", "combine<Minus>", "$d_ = $a_ - $b", kVectorShapes},
    {"Sub", "vaca", kScaled, "(2*n+1)*c", kVectorLimits, "elementwise", "combine<Minus>", "$d_ = $a_ - $b", kVectorShapes},
    {"Sub", "cv", kScaled, "", "", "elementwise", "combine<SubtractedFrom>", "$d_ = $b - $a_", kVectorShapes},
    {"Sub", "cva", kScaled, "2*c", "4800/4800 2500/2500 1500 1400/1400 2500/2500 1500", "elementwise",
     "combine<SubtractedFrom>", "$d_ = $b - $a_", kVectorShapes},
    {"Sub", "cav", kScaled, "c*n+c+n", kVectorLimits, "elementwise", "combine<SubtractedFrom>", "$d_ = $b - $a_",
     kVectorShapes},
    {"Sub", "cava", kScaled, "(2*n+1)*c", kVectorLimits, "elementwise", "combine<SubtractedFrom>", "$d_ = $b - $a_",
     kVectorShapes},
    {"Mul", "vc", kScaled, "", "", "elementwise", "combine<Times>", "$d_ = $a_ * $b", kVectorShapes},
    {"Mul", "mc tc", kScaled, "", "", "elementwise", "combine<Times>", "$d_ = $a_ * $b", kMatrixShapes},
    {"Mul", "vac", kScaled, "2*c*n", kProductLimits, "elementwise", "combine<Times>", "$d_ = $a_ * $b", kVectorShapes},
    {"Mul", "vca", kScaled, "c*n+c+n", kScaleLimits, "elementwise", "combine<Times>", "$d_ = $a_ * $b", kVectorShapes},
    {"Mul", "vaca", kScaled, "(2*n+1)*c", kScaleLimits, "elementwise", "combine<Times>", "$d_ = $a_ * $b", kVectorShapes},
    {"Mul", "mac tac", kScaled, "2*c*w*h", "3501/3501 3501/1501 1701 3501/3501 3501/3501 1701", "elementwise", "combine<Times>",
     "$d_ = $a_ * $b", kMatrixShapes},
    {"Saxpy", "vv", "src1 val src2 dst width count", "", "", "elementwise", "combine_scaled", "$d_ = $a_ * val + $b_",
     kVectorShapes},
    {"Saxpy", "vav", "src1 val src2 dst width count", "(2*c+1)*n", kSaxpyLimits, "elementwise", "combine_scaled",
     "$d_ = $a_ * val + $b_", kVectorShapes},
    {"Saxpy", "vva", "src1 val src2 dst width count", "(2*c+1)*n", "3001/2001 1501/1501 1201 3001/1201 1001/1001 1201",
     "elementwise", "combine_scaled", "$d_ = $a_ * val + $b_", kVectorShapes},
    {"Saxpy", "vava", "src1 val src2 dst width count", "3*c*n", kSaxpyLimits, "elementwise", "combine_scaled",
     "$d_ = $a_ * val + $b_", kVectorShapes},
    {"LComb", "vv", "src1 val1 src2 val2 dst width count", "", "", "elementwise", "combine_weighted",
     "$d_ = $a_ * val1 + $b_ * val2", kVectorShapes},
    {"LComb", "vav", "src1 val1 src2 val2 dst width count", "(2*c+1)*n", kCombinationLimits, "elementwise", "combine_weighted",
     "$d_ = $a_ * val1 + $b_ * val2", kVectorShapes},
    {"LComb", "vava", "src1 val1 src2 val2 dst width count", "3*c*n", kCombinationLimits, "elementwise", "combine_weighted",
     "$d_ = $a_ * val1 + $b_ * val2", kVectorShapes},

    // Movers: bit patterns, no arithmetic
    {"Copy", "ma", "src dst width height count", "", "", "elementwise", "move::copy", "$d_ = $a_, bit for bit", kCopiedMatrices,
     "", "", "", Kernels::none},
    {"Copy", "va", "src dst width count", "", "", "elementwise", "move::copy", "$d_ = $a_, bit for bit", kCopiedVectors, "", "",
     "", Kernels::none},
    {"Extract", "m ma", "src pDst width height count", "", "", "elementwise", "move::extract",
     "pDst[(k*height + i)*width + j] = $a_", "packed block: height x width", "", "", "", Kernels::none},
    {"Extract", "t ta", "src pDst width height count", "", "", "elementwise", "move::extract",
     "pDst[(k*height + i)*width + j] = $a_", "packed block: height x width; stored source: width x height", "", "", "",
     Kernels::none},
    {"Extract", "v va", "src pDst width count", "", "", "elementwise", "move::extract", "pDst[k*width + j] = $a_",
     kVectorShapes, "", "", "", Kernels::none},
    {"LoadIdentity", "ma", "dst width height count", "", "", "elementwise", "move::load_identity",
     "D[k](i, j) = 1 where i == j, else 0", "D height x width. With count 1 stride0 is not looked at", "", "", "",
     Kernels::none},
    {"Transpose", "m ma", "src width height dst:height count", "", "", "elementwise", "move::transpose",
     "D(j, i) = A(i, j) of every object", "source height x width; destination width x height"},

    // Products
    {"Mul", "mm mt tm tt", kMulArguments, "", "", "products", "multiply", "$d = $a * $b; $d must overlap neither", kMulShapes,
     "", "", "inner"},
    {"Mul", "mam mat tam tat", kMulArguments, "product", kProductLimits, "products", "multiply",
     "$d = $a * $b; $d must overlap neither", kMulShapes, "", "", "inner"},
    {"Mul", "mma mta tma tta", kMulArguments, "product", kProductLimits, "products", "multiply",
     "$d = $a * $b; $d must overlap neither", kMulShapes, "", "", "inner"},
    {"Mul", "mama mata tama tata", kMulArguments, "product", kProductLimits, "products", "multiply",
     "$d = $a * $b; $d must overlap neither", kMulShapes, "", "", "inner"},
    {"Mul", "mv tv", "src1 width height src2 src2Len dst count", "", "", "products", "apply::mul",
     "$d = $a * $b; $d must overlap neither", kMulVectorShapes, "", "", "inner"},
    {"Mul", "mav tav mava tava mva tva", "src1 width height src2 src2Len dst count", "product", kProductLimits, "products",
     "apply::mul", "$d = $a * $b; $d must overlap neither", kMulVectorShapes, "", "", "inner"},
    {"Gaxpy", "mv", "src1 width height src2 src2Len src3 src3Len dst count", "", "", "products", "apply::gaxpy",
     "$d = $a * $b + $c; $d must overlap none of them", "A height x width; b src2Len, c src3Len elements", "", "",
     "width == src2Len && height == src3Len"},
    {"Gaxpy", "mva", "src1 width height src2 src2Len src3 src3Len dst count", "(w+2*h)*c", kGaxpyLimits, "products",
     "apply::gaxpy", "$d = $a * $b + $c; $d must overlap none of them", "A height x width; b src2Len, c src3Len elements", "",
     "", "width == src2Len && height == src3Len"},
    {"Gaxpy", "mvav", "src1 width height src2 src2Len src3 src3Len dst count", "c*w+c*h+h", kGaxpyLimits, "products",
     "apply::gaxpy", "$d = $a * $b + $c; $d must overlap none of them", "A height x width; b src2Len, c src3Len elements", "",
     "", "width == src2Len && height == src3Len"},
    {"DotProduct", "vv", "src1 src2 pDst width count", "", "", "products", "dot", "*pDst = sum over j of $a_ * $b_",
     kVectorShapes},
    {"DotProduct", "vav", "src1 src2 pDst width count", "c*n+n", kDotLimits, "products", "dot",
     "pDst[k] = sum over j of $a_ * $b_", kVectorShapes},
    {"DotProduct", "vava", "src1 src2 pDst width count", "2*c*n", kDotLimits, "products", "dot",
     "pDst[k] = sum over j of $a_ * $b_", kVectorShapes},
    {"CrossProduct", "vv", "src1 src2 dst count", "", "", "products", "cross", "$d = $a x $b; $d must overlap neither",
     "vectors of 3 elements"},
    {"CrossProduct", "vav vva", "src1 src2 dst count", "2*c", "3000/3000 3000/3000 3000 3000/3000 3000/3000 3000", "products",
     "cross", "$d = $a x $b; $d must overlap neither", "vectors of 3 elements"},
    {"CrossProduct", "vava", "src1 src2 dst count", "3*c", "3001/3001 3001/3001 3001 3001/3001 3001/3001 3001", "products",
     "cross", "$d = $a x $b; $d must overlap neither", "vectors of 3 elements"},
    {"L2Norm", "v", "src pDst width count", "", "", "products", "norm::euclidean",
     "*pDst = sqrt(sum over j of $a_^2); infinite or 0 where the squares leave the range", kVectorShapes},
    {"L2Norm", "va", "src pDst width count", "c*n", "1501/1501 1501/1501 1501 1501/1501 1501/1501 1501", "products",
     "norm::euclidean", "pDst[k] = sqrt(sum over j of $a_^2); infinite or 0 where the squares leave the range", kVectorShapes},
    {"FrobNorm", "m", "src width height pDst count", "", "", "products", "norm::frobenius",
     "*pDst = sqrt(sum over i, j of $a_^2); infinite or 0 where the squares leave the range", "A height x width", "", "", "",
     Kernels::one},
    {"FrobNorm", "ma", "src width height pDst count", "c*w*h", "2501/1801 1601/1601 1501 1801/1501 1601/1601 2501", "products",
     "norm::frobenius", "pDst[k] = sqrt(sum over i, j of $a_^2); infinite or 0 where the squares leave the range",
     "A height x width"},
    {"Trace", "m", "src widthHeight pDst count", "", "", "products", "trace", "*pDst = sum over i of A(i, i)", kSquareShapes},
    {"Trace", "ma", "src widthHeight pDst count", "c*n", "3601/3601 3601/3601 3601 3601/3601 3601/3601 3601", "products",
     "trace", "pDst[k] = sum over i of A[k](i, i)", kSquareShapes},

    // Linear systems
    {"LUDecomp", "m ma", "src pDstIndex dst widthHeight count", "c*n*n", "1001/1001 1001/1001 1001 1001/1001 1001/1001 1001",
     "solvers", "lu::decompose",
     "P A = L U with partial pivoting by rows. D, which may be A, holds both factors in A's row order: with p the object's n "
     "entries of pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L. Singular where a pivot "
     "is below 2^-125 (2^-1021 in double) in orders 3 to 6, or not above 2^-23 (2^-52) in the others",
     kSquareShapes, "zelStsSingular"},
    {"LUBackSubst", "mv", "src1 pSrcIndex src2 dst widthHeight count", "", "", "solvers", "lu::solve",
     "solves A x = b from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b", kSolveShapes},
    {"LUBackSubst", "mva", "src1 pSrcIndex src2 dst widthHeight count", "n*n+2*c*n", "701/701 701/701 701 701/701 701/701 701",
     "solvers", "lu::solve",
     "solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote; in orders 3 to 6 x may be b",
     kSolveShapes},
    {"LUBackSubst", "mava", "src1 pSrcIndex src2 dst widthHeight count", "(n+2)*n*c",
     "1201/1201 1201/1201 1201 1201/1201 1201/1201 1201", "solvers", "lu::solve",
     "solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote; in orders 3 to 6 x may be b",
     kSolveShapes},
    {"CholeskyDecomp", "m ma", "src dst widthHeight count", "c*n*n", "7501/7501 2001/2001 2001 2001/2001 721/2001 2001",
     "solvers", "cholesky::decompose",
     "A = L L^T, A symmetric positive definite, of which the lower triangle is read. D, which may be A, gets the lower "
     "triangle "
     "of L with the reciprocals of L's diagonal on its diagonal, and nothing above. A pivot of 0 or less fails; of 2^-23 or "
     "less "
     "in order 3 of _P, of 2^-52 or less in strided double arrays of orders 1, 2, and 6 up",
     kSquareShapes, "zelStsNotPositiveDefinite"},
    {"CholeskyBackSubst", "mv", "src1 src2 dst widthHeight count", "", "", "solvers", "cholesky::solve",
     "solves A x = b from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b", kSolveShapes},
    {"CholeskyBackSubst", "mva", "src1 src2 dst widthHeight count", "n*n+2*c*n", "1201/1201 721/721 721 721/721 721/721 721",
     "solvers", "cholesky::solve",
     "solves A x[k] = b[k] from the factor that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b", kSolveShapes},
    {"CholeskyBackSubst", "mava", "src1 src2 dst widthHeight count", "(n+2)*n*c",
     "2051/1701 1701/1701 1701 1701/1701 1701/1701 2051", "solvers", "cholesky::solve",
     "solves A[k] x[k] = b[k] from the factors that zelmCholeskyDecomp wrote; in orders 3 to 6 x may be b", kSolveShapes},
    {"QRDecomp", "m ma", "src pBuffer dst width height count", "2*c*w*h", kQRLimits, "solvers", "qr::decompose",
     "A = Q R by Householder reflections. D, which may be A, gets R and, below its diagonal, the reflection vectors (leading 1 "
     "left out). A column whose rest has a squared norm below 2^-23 (2^-52 in double) fails, but for the last of a square A",
     "A and D height x width, width <= height; pBuffer height elements", "zelStsDivideByZero", "h*E", "width <= height"},
    {"QRBackSubst", "mv", "src1 pBuffer src2 dst width height count", "", "", "solvers", "qr::solve",
     "least-squares solution of A x = b from the result of zelmQRDecomp",
     "A height x width; b height, x width elements; pBuffer height elements", "", "", "width <= height"},
    {"QRBackSubst", "mva", "src1 pBuffer src2 dst width height count", "w*h+c*w+c*h", kQRLimits, "solvers", "qr::solve",
     "least-squares solution of A x[k] = b[k] from the result of zelmQRDecomp",
     "A height x width; b height, x width elements; pBuffer height elements", "", "h*E", "width <= height"},
    {"QRBackSubst", "mava", "src1 pBuffer src2 dst width height count", "c*w*h+c*w+c*h", kQRLimits, "solvers", "qr::solve",
     "least-squares solution of A[k] x[k] = b[k] from the results of zelmQRDecomp",
     "A height x width; b height, x width elements; pBuffer height elements", "", "h*E", "width <= height"},
    {"Det", "m", "src widthHeight pBuffer pDst count", "", "", "solvers", "determinant::compute",
     "*pDst = det(A), which need not be exactly 0 where A is singular", kScratchShapes},
    {"Det", "ma", "src widthHeight pBuffer pDst count", "c*n", "14401/14401 14401/14401 14401 14401/14401 14401/14401 14401",
     "solvers", "determinant::compute", "pDst[k] = det(A[k]), which need not be exactly 0 where A[k] is singular",
     kScratchShapes, "", "(n*n+n)*E"},
    {"Invert", "m ma", "src pBuffer dst widthHeight count", "2*c*n", "3601/2501 2501/2501 2501 2501/2501 2501/2501 2501",
     "solvers", "inverse::invert",
     "$d = inverse of $a, which D may be in orders 1 and 3 to 6. Singular where |det| or a pivot is below an absolute limit, "
     "about "
     "2 n^3 times the smallest normal number. In orders 2 and 7 upward each vanishing cofactor counts as that limit, not as 0",
     kScratchShapes, "zelStsSingular", "(n*n+n)*E", "", Kernels::by_stride, "inverse::reciprocals"},

    // Eigenproblems
    {"EigenValuesSym", "m ma", "src pBuffer pDst widthHeight count", "c*n*n+c*n",
     "1001/1001 1001/1001 1001 1001/1001 1001/1001 1001", "eigen", "symmetric::values",
     "eigenvalues of the symmetric $a, n for every object, the largest first; of order 2 the one of larger magnitude. Elements "
     "off the diagonal count as zero from twice the epsilon down: scale matrices to about 1. zelStsSingular: the product of "
     "the values is at most epsilon; they are there all the same but not sorted (order 2: nothing is written), and an array "
     "ends with that object",
     kSymmetricBuffer, "zelStsSingular zelStsNoConvergence", "n*n*E"},
    {"EigenValuesVectorsSym", "m ma", "src pBuffer dstVectors pDstValues widthHeight count", "2*c*n*n+c*n",
     "701/701 701/701 701 701/701 701/701 701", "eigen", "symmetric::vectors",
     "eigenvalues of the symmetric $a as from zelmEigenValuesSym, and orthonormal eigenvectors: column j belongs to value j. "
     "zelStsSingular: the product of the values is at most epsilon; values and vectors are there all the same (order 2: "
     "nothing "
     "is written), and an array ends with that object",
     kSymmetricBuffer, "zelStsSingular zelStsNoConvergence", "n*n*E"},
    {"EigenValues", "m ma", "src pDstValuesRe pDstValuesIm widthHeight count pBuffer", "c*n*n+c*n",
     "251/251 251/251 251 251/251 251/251 251", "eigen", "general::values",
     "eigenvalues of the general $a: real and imaginary parts, n each for every object, unsorted. A complex pair takes two "
     "neighbouring places, the positive imaginary part first; a 2 x 2 block with equal diagonal elements counts as one even "
     "where its eigenvalues are real. A subdiagonal element of at most epsilon counts as zero whatever "
     "the size of the matrix: scale it to about 1",
     "square matrices of order n = widthHeight; pBuffer of the bytes that zelmEigenValuesGetBufSize gives",
     "zelStsNoConvergence", "n*E*(3*n+5)", "", Kernels::one},
    {"EigenValuesVectors", "m ma", "src dstVectorsRight dstVectorsLeft pDstValuesRe pDstValuesIm widthHeight count pBuffer",
     "3*c*n*n+c*n", "501/501 501/501 501 501/501 501/501 501", "eigen", "general::both_vectors",
     "eigenvalues and both sets of unit eigenvectors, in columns, of the transposed $a: A^T x = lambda x and u^H A^T = lambda "
     "u^H. "
     "The vector of a complex pair takes its two columns: real and imaginary part of the vector of the first",
     kVectorBuffer, kVectorStatuses, "n*E*(3*n+5)", "", Kernels::one},
    {"EigenValuesVectorsLeft", "m ma", "src dstVectors pDstValuesRe pDstValuesIm widthHeight count pBuffer", "", "", "eigen",
     "general::left_vectors",
     "eigenvalues and unit left eigenvectors, in columns, of the transposed $a: u^H A^T = lambda u^H, so for a real value "
     "A u = lambda u. The vector of a complex pair takes its two columns: real and imaginary part of the vector of the first",
     kVectorBuffer, kVectorStatuses, "", "", Kernels::one},
    {"EigenValuesVectorsRight", "m ma", "src dstVectors pDstValuesRe pDstValuesIm widthHeight count pBuffer", "", "", "eigen",
     "general::right_vectors",
     "eigenvalues and unit right eigenvectors, in columns, of the transposed $a: A^T x = lambda x. The vector of a complex "
     "pair "
     "takes its two columns: real and imaginary part of the vector of the first",
     kVectorBuffer, kVectorStatuses, "", "", Kernels::one},
    {"EigenValuesGetBufSize", "", "widthHeight pSize", "", "", "eigen", "general::buffer_size<1>",
     "*pSize = bytes of pBuffer for zelmEigenValues of order widthHeight", "", "", "", "", Kernels::none},
    {"EigenValuesVectorsGetBufSize", "", "widthHeight pSize", "", "", "eigen", "general::buffer_size<3>",
     "*pSize = bytes of pBuffer for zelmEigenValuesVectors, ...Left and ...Right of order widthHeight", "", "", "", "",
     Kernels::none},

    // Fixed-size geometry, 32f: plain pointers, nothing is checked unless said
    {"Add", "v2 v3 v4", "pSrc1 pSrc2 pDst", "", "", "geometry", "vec::add<$n>", "d(j) = a(j) + b(j); D may be a source", ""},
    {"Sub", "v2 v3 v4", "pSrc1 pSrc2 pDst", "", "", "geometry", "vec::subtract<$n>", "d(j) = a(j) - b(j); D may be a source",
     ""},
    {"MulC", "v2 v3 v4", "pSrc val pDst", "", "", "geometry", "vec::scale<$n>", "d(j) = a(j) * val; D may be A", ""},
    {"Min", "v2 v3 v4", "pSrc1 pSrc2 pDst", "", "", "geometry", "vec::smaller<$n>",
     "d(j) = a(j) < b(j) ? a(j) : b(j), so b(j) where either is a NaN; D may be a source", ""},
    {"Max", "v2 v3 v4", "pSrc1 pSrc2 pDst", "", "", "geometry", "vec::larger<$n>",
     "d(j) = a(j) > b(j) ? a(j) : b(j), so b(j) where either is a NaN; D may be a source", ""},
    {"LenSqr", "v2 v3 v4", "pSrc pDst", "", "", "geometry", "vec::square<$n>",
     "*pDst = a(0)^2 + a(1)^2 + ..., one float, summed in this order", ""},
    {"Len", "v2 v3 v4", "pSrc pDst", "", "", "geometry", "vec::length<$n>",
     "*pDst = sqrt(a(0)^2 + a(1)^2 + ...), one float; infinity where a square exceeds the float range", ""},
    {"Normalize", "v2 v3 v4", "pSrc pDst", "", "", "geometry", "vec::normalize<$n>",
     "d(j) = a(j) / length of A, by division; D may be A. A vector of length 0 gives NaNs", ""},
    {"DotProduct", "v2 v3 v4", "pSrc1 pSrc2 pDst", "", "", "geometry", "vec::dot_product<$n>",
     "*pDst = a(0) b(0) + a(1) b(1) + ..., one float, summed in this order", ""},
    {"CrossProduct", "v2", "pSrc1 pSrc2 pDst", "", "", "geometry", "vec::cross2", "*pDst = a(0) b(1) - a(1) b(0), one float",
     ""},
    {"CrossProduct", "v3", "pSrc1 pSrc2 pDst", "", "", "geometry", "vec::cross3",
     "D = A x B; D must not be a source: each element is stored before the next is computed", ""},
    {"CrossProduct", "v4", "pSrc1 pSrc2 pSrc3 pDst", "", "", "geometry", "vec::cross4",
     "D orthogonal to A, B and C: d(0) = det of elements 1 2 3 of the three, d(1) = - det of 0 2 3, d(2) = det of 0 1 3, "
     "d(3) = - det of 0 1 2; D must not be a source: each element is stored before the next is computed",
     ""},
    {"BaryCentric", "v2 v3 v4", "pSrc1 pSrc2 pSrc3 weight1 weight2 pDst", "", "", "geometry", "vec::barycentric<$n>",
     "D = (B - A) weight1 + A + (C - A) weight2, summed in this order; D may be a source", ""},
    {"Hermite", "v2 v3 v4", "pPoint0 pTangent0 pPoint1 pTangent1 weight pDst", "", "", "geometry", "vec::hermite<$n>",
     "the point at s = weight, 0 to 1, of the cubic from p0 to p1 with tangents t0 and t1: D = (p0 - p1) (2 s^3 - 3 s^2) + "
     "((p0 + t0 (s - 2 s^2 + s^3)) + t1 (s^3 - s^2)), which is p0 exactly at s = 0; D may be a source",
     ""},
    {"InterpolationLinear", "v2 v3 v4", "pSrc1 pSrc2 weight pDst", "", "", "geometry", "vec::linear<$n>",
     "D = A + (B - A) weight, which is A exactly at weight 0; D may be a source", ""},
    {"InterpolationCatmullRom", "v2 v3 v4", "pSrc1 pSrc2 pSrc3 pSrc4 weight pDst", "", "", "geometry", "vec::catmull_rom<$n>",
     "the point at weight, 0 to 1, of the Hermite curve from pSrc2 to pSrc3 with the tangents (pSrc3 - pSrc1) / 2 and "
     "(pSrc4 - pSrc2) / 2; D may be a source",
     ""},
    {"Identity", "m4", "pDst", "", "", "geometry", "build::identity", "D = I", ""},
    {"IsIdentity", "m4", "pSrc pResult", "", "", "geometry", "build::is_identity",
     "*pResult = 1 if A(0, 0) is 1 and at least one column of A, whichever, equals that of the identity exactly; else 0. "
     "True of the identity, but not of it alone",
     ""},
    {"Translation", "m4", "x y z pDst", "", "", "geometry", "build::translation",
     "p D = p + (x, y, z): the identity with x, y, z in M[12], M[13], M[14]", ""},
    {"Scaling", "m4", "x y z pDst", "", "", "geometry", "build::scaling", "D = diag(x, y, z, 1)", ""},
    {"RotationX", "m4", "angle pDst", "", "", "geometry", "build::rotation_x",
     "rotation about the x axis by angle radians, from y towards z", ""},
    {"RotationY", "m4", "angle pDst", "", "", "geometry", "build::rotation_y",
     "rotation about the y axis by angle radians, from z towards x", ""},
    {"RotationZ", "m4", "angle pDst", "", "", "geometry", "build::rotation_z",
     "rotation about the z axis by angle radians, from x towards y: (1, 0, 0) becomes (cos, sin, 0)", ""},
    {"RotationAxis", "v3m4", "pAxis angle pDst", "", "", "geometry", "build::rotation_axis",
     "rotation by angle radians about the axis of 3 floats, of any length but 0 (NaNs); about (0, 0, 1) it is that of "
     "zelmRotationZ_m4_32f. Rodrigues' formula",
     ""},
    {"RotationYawPitchRoll", "m4", "yaw pitch roll pDst", "", "", "geometry", "build::rotation_yaw_pitch_roll",
     "D = RotationZ(roll) * RotationX(pitch) * RotationY(yaw), that is roll first; radians", ""},
    {"LookAtLH", "m4", "pEye pAt pUp pDst", "", "", "geometry", "build::look_at<LeftHanded>",
     "left-handed view: the eye (3 floats) goes to the origin, the direction from it to pAt to +z, pUp to the half plane of "
     "+y. NaNs where pAt is the eye or pUp lies along the view",
     ""},
    {"LookAtRH", "m4", "pEye pAt pUp pDst", "", "", "geometry", "build::look_at<RightHanded>",
     "right-handed view: the eye (3 floats) goes to the origin, the direction from it to pAt to -z, pUp to the half plane "
     "of +y. NaNs where pAt is the eye or pUp lies along the view",
     ""},
    {"PerspectiveLH", "m4", "viewWidth viewHeight zNear zFar pDst", "", "", "geometry", "build::perspective<LeftHanded>",
     "left-handed perspective of a near plane of viewWidth x viewHeight; z = zNear to zFar becomes 0 to 1 after the "
     "division by w = z",
     ""},
    {"PerspectiveFovLH", "m4", "fovY aspect zNear zFar pDst", "", "", "geometry", "build::perspective_fov<LeftHanded>",
     "left-handed perspective by the full vertical angle fovY in radians and aspect = width / height; z = zNear to zFar "
     "becomes 0 to 1 after the division by w = z",
     ""},
    {"PerspectiveOffCenterLH", "m4", "left right bottom top zNear zFar pDst", "", "", "geometry",
     "build::perspective_off_center<LeftHanded>",
     "left-handed perspective of the window left to right, bottom to top of the near plane; z = zNear to zFar becomes 0 to "
     "1 after the division by w = z",
     ""},
    {"OrthoLH", "m4", "viewWidth viewHeight zNear zFar pDst", "", "", "geometry", "build::ortho<LeftHanded>",
     "left-handed parallel projection of a box of viewWidth x viewHeight; z = zNear to zFar becomes 0 to 1", ""},
    {"OrthoOffCenterLH", "m4", "left right bottom top zNear zFar pDst", "", "", "geometry",
     "build::ortho_off_center<LeftHanded>",
     "left-handed parallel projection of the box left to right, bottom to top; z = zNear to zFar becomes 0 to 1", ""},
    {"PerspectiveRH", "m4", "viewWidth viewHeight zNear zFar pDst", "", "", "geometry", "build::perspective<RightHanded>",
     "right-handed perspective of a near plane of viewWidth x viewHeight; z = -zNear to -zFar becomes 0 to 1 after the "
     "division by w = -z",
     ""},
    {"PerspectiveFovRH", "m4", "fovY aspect zNear zFar pDst", "", "", "geometry", "build::perspective_fov<RightHanded>",
     "right-handed perspective by the full vertical angle fovY in radians and aspect = width / height; z = -zNear to -zFar "
     "becomes 0 to 1 after the division by w = -z",
     ""},
    {"PerspectiveOffCenterRH", "m4", "left right bottom top zNear zFar pDst", "", "", "geometry",
     "build::perspective_off_center<RightHanded>",
     "right-handed perspective of the window left to right, bottom to top of the near plane; z = -zNear to -zFar becomes 0 "
     "to 1 after the division by w = -z",
     ""},
    {"OrthoRH", "m4", "viewWidth viewHeight zNear zFar pDst", "", "", "geometry", "build::ortho<RightHanded>",
     "right-handed parallel projection of a box of viewWidth x viewHeight; z = -zNear to -zFar becomes 0 to 1", ""},
    {"OrthoOffCenterRH", "m4", "left right bottom top zNear zFar pDst", "", "", "geometry",
     "build::ortho_off_center<RightHanded>",
     "right-handed parallel projection of the box left to right, bottom to top; z = -zNear to -zFar becomes 0 to 1", ""},
    {"Mul", "mm4x4", "pSrc1 pSrc2 pDst", "", "", "geometry", "m4::mul",
     "D = A * B, which as a transform applies A first; D may be a source. Null pointers are refused", ""},
    {"MulTranspose", "m4", "pSrc1 pSrc2 pDst", "", "", "geometry", "m4::mul_transposed",
     "D = (A * B)^T, the transpose of the product; D may be a source", ""},
    {"Transpose", "m4", "pSrc pDst", "", "", "geometry", "m4::transpose", "D = A^T; D may be A", ""},
    {"Det", "m4", "pSrc pDst", "", "", "geometry", "m4::determinant", "*pDst = det(A), one float, expanded along the first row",
     ""},
    {"Invert", "m4", "pSrc pDet pDst", "", "", "geometry", "m4::invert",
     "D = inverse of A, by cofactors, and *pDet = det(A) unless pDet is null; D may be A. Singular if |det(A)| < 2^-119: "
     "then *pDet = 0 and D is left alone",
     "", "zelStsSingular"},
    {"AffineTransform", "m4v2 m4v3 m4v4", "pMatrix pSrc pDst", "", "", "geometry", "transform::one<Affine<$n>>",
     "D = A * M, 4 floats; v2 counts as (x, y, 0, 1), v3 as (x, y, z, 1)", ""},
    {"AffineTransform", "m4v2a m4v3a m4v4a", "pMatrix pSrc srcStride0 pDst dstStride0 count", "", "", "geometry",
     "transform::array<Affine<$n>>", "D[k] = A[k] * M, 4 floats each; v2 counts as (x, y, 0, 1), v3 as (x, y, z, 1)",
     kFixedArrays},
    {"AffineTransformCoord", "m4v2 m4v3", "pMatrix pSrc pDst", "", "", "geometry", "transform::one<Coord<$n>>",
     "the point A * M divided by its fourth element w, as many floats as A has; v2 counts as (x, y, 0, 1), v3 as (x, y, z, "
     "1). w = 0 gives infinities or NaNs; D may be A",
     ""},
    {"AffineTransformCoord", "m4v2a m4v3a", "pMatrix pSrc srcStride0 pDst dstStride0 count", "", "", "geometry",
     "transform::array<Coord<$n>>",
     "the points A[k] * M divided by their fourth elements w, as many floats as A[k] has; v2 counts as (x, y, 0, 1), v3 as "
     "(x, y, z, 1). w = 0 gives infinities or NaNs",
     kFixedArrays},
    {"AffineTransformNormal", "m4v2 m4v3", "pMatrix pSrc pDst", "", "", "geometry", "transform::one<Normal<$n>>",
     "the direction A times the upper left block of M as it stands, as many floats as A has: no translation, no inverse "
     "transpose, no unit length; D may be A",
     ""},
    {"AffineTransformNormal", "m4v2a m4v3a", "pMatrix pSrc srcStride0 pDst dstStride0 count", "", "", "geometry",
     "transform::array<Normal<$n>>",
     "the directions A[k] times the upper left block of M as it stands, as many floats as A[k] has: no translation, no "
     "inverse transpose, no unit length",
     kFixedArrays},
    {"Project", "m4v3", "pProjection pView pWorld pSrc vpWidth vpHeight vpMinZ vpMaxZ pDst", "", "", "geometry",
     "transform::project",
     "a point of the world to the screen: n = A * World * View * Projection, step by step, divided by its fourth element; D "
     "= (vpWidth (1 + n0) / 2, vpHeight (1 - n1) / 2, vpMinZ + (vpMaxZ - vpMinZ) n2), y down; D may be A",
     ""},
    {"Project", "m4v3a", "pProjection pView pWorld pSrc srcStride0 vpWidth vpHeight vpMinZ vpMaxZ pDst dstStride0 count", "",
     "", "geometry", "transform::project_array",
     "points of the world to the screen: n = A[k] * (World * (View * Projection)) divided by its fourth element; D[k] = "
     "(vpWidth (1 + n0) / 2, vpHeight (1 - n1) / 2, vpMinZ + (vpMaxZ - vpMinZ) n2), y down",
     kFixedArrays},
    {"Unproject", "m4v3", "pProjection pView pWorld pSrc vpWidth vpHeight vpMinZ vpMaxZ pDst", "", "", "geometry",
     "transform::unproject",
     "a point of the screen, y down, to the world: n = (2 x / vpWidth - 1, -2 y / vpHeight + 1, (z - vpMinZ) / (vpMaxZ - "
     "vpMinZ)) times the inverse, taken in double, of (World * View) * Projection, divided by its fourth element. D may be "
     "A; where there is no inverse D is n",
     "", "zelStsSingular"},
    {"Unproject", "m4v3a", "pProjection pView pWorld pSrc srcStride0 vpWidth vpHeight vpMinZ vpMaxZ pDst dstStride0 count", "",
     "", "geometry", "transform::unproject_array",
     "points of the screen, y down, to the world: n = (2 x / vpWidth - 1, -2 y / vpHeight + 1, (z - vpMinZ) / (vpMaxZ - "
     "vpMinZ)) times the inverse, taken in double, of (World * View) * Projection, divided by its fourth element. Where "
     "there is no inverse nothing is written, and the status tells it whatever count is",
     kFixedArrays, "zelStsSingular"},
    {"AffineTransform3DH", "mva", "src1 src2 dst count", "6*c", "785/785", "geometry", "homogeneous::transform",
     "column vectors: (x', y', z', w') = M (x, y, z, 1), D[k] = (x', y', z') * (1 / w'). Where |w'| is not above 2^-126, "
     "D[k] is three times the largest float, and the status tells it at the end; D may be src2",
     "M 4 x 4; points of 3 elements", "zelStsDivideByZero"},
    {"GetLibVersion", "", "", "", "", "frame", "version", "the version record of the library; never null", "", "", "", "",
     Kernels::none},
};

/// Orders in which arguments are tested, where they deviate from kDefaultOrder. One letter a step: P pointers, C count, N sizes,
/// M operand sizes that do not agree, S strides, B byte shifts, W more columns than rows; in lower case those of the sources
/// alone; G the stride0 of every operand, looked at only when count is above 1 (S then leaves it out).
inline constexpr std::string_view kDefaultOrder = "PCNMSBW";

struct Deviation {
  std::string_view operations, forms, types, layouts, order;  // empty: all. Layout of the standard functions: "standard"
};

inline constexpr Deviation kDeviations[] = {
    {"Add Sub", "mam", "", "standard", "PCSN"},
    {"Sub", "mma", "", "standard", "PCSN"},
    {"Add Sub", "vav", "", "standard", "PNSC"},
    {"Add Sub", "vav", "", "L", "PNSBC"},
    {"Add Sub", "vav", "", "P", "PNSCB"},
    {"CrossProduct", "vav", "", "standard", "PSC"},
    {"CrossProduct", "vav", "", "L", "PSBC"},
    {"CrossProduct", "vav", "", "P", "PSCB"},
    {"CholeskyBackSubst", "mva", "", "L", "PSBNC"},
    {"EigenValues EigenValuesSym EigenValuesVectorsSym", "", "", "", "PNCBS"},
    {"EigenValuesVectors EigenValuesVectorsLeft EigenValuesVectorsRight", "", "", "standard", "PNCS"},
    {"EigenValuesVectors EigenValuesVectorsLeft EigenValuesVectorsRight", "", "", "", "PNCbsBS"},
    {"Extract", "v", "32f", "P", "PNB"},
    {"Extract", "m t v", "", "P", "NPB"},
    {"Extract", "", "", "", "PNCBS"},
    {"LoadIdentity", "", "", "standard", "PNCSG"},
    {"LoadIdentity", "", "", "L", "PNCSB"},
    {"LoadIdentity", "", "32f", "P", "PNBCG"},
    {"LoadIdentity", "", "64f", "P", "PNCBG"},
    {"Copy", "va", "32f", "LP", "PNCBSG"},
    {"Copy", "", "", "", "PNCSBG"},
};

inline constexpr std::string_view kMulForms = "mm mt tm tt mam mat tam tat mma mta tma tta mama mata tama tata";

/// Kernels of one family that differ in more than their views: in the order of their sums, in a limit, in the sizes that have a
/// path of their own. The first entry that covers a kernel gives its formula's first template argument.
struct Variant {
  std::string_view operation, forms, kernels, policy;  // kernels: "32f 32f_S2 32f_L 32f_LS2 32f_P 64f ..."; empty: all
};

inline constexpr Variant kVariants[] = {
    // Products of two matrices: order of the sums and the orders of square products that have a path of their own. The gaps are
    // contract: they decide the rounding.
    {"Mul", "mata", "64f", "Plain<3, 6>"},
    {"Mul", "tm", "32f", "Blocked<3, 5>"},
    {"Mul", "mta tta", "32f_L", "Blocked<0, 0>"},
    {"Mul", "tta", "64f_L", "Blocked<0, 0>"},
    {"Mul", kMulForms, "32f 32f_L 64f 64f_L", "Blocked<3, 6>"},
    {"Mul", "mat", "32f_S2", "Gathering<3, 3>"},
    {"Mul", "mt mat mta mata", "32f_S2 64f_S2", "Gathering<3, 6>"},
    {"Mul", "mama", "32f_S2", "Plain<3, 5>"},
    {"Mul", "tam", "32f_S2", "Plain<3, 3>"},
    {"Mul", "mam mat tam tat", "32f_LS2", "Plain<3, 3>"},
    {"Mul", "mat mta mata", "32f_LS2 64f_LS2", "Each<Gathering<3, 6>>"},
    {"Mul", kMulForms, "32f_LS2 64f_LS2", "Each<Plain<3, 6>>"},
    {"Mul", "mam mat tam", "32f_P", "Plain<3, 3>"},
    {"Mul", kMulForms, "", "Plain<3, 6>"},
    // A matrix with vectors: how the sizes 3 x 3 to 6 x 6 are summed (void: like the others), and how all others
    {"Mul", "mv tv", "32f 64f", "apply::Sums<apply::Ascending, apply::Blocks>"},
    {"Mul", "mva", "32f", "apply::Sums<apply::ResidentOrBatched, apply::Rows>"},
    {"Mul", "tva", "32f", "apply::Sums<apply::Resident, apply::Blocks>"},
    {"Mul", "mva tva", "32f_L", "apply::Sums<apply::AsBlocks, apply::Blocks>"},
    {"Mul", "tva tava", "64f_L", "apply::Sums<apply::AsBlocks, apply::Blocks>"},
    {"Mul", "mav tav mava tava", "32f 32f_L", "apply::Sums<apply::EvenOdd, apply::Blocks>"},
    {"Mul", "mav mava", "64f 64f_L", "apply::Sums<apply::EvenOdd, apply::Blocks>"},
    {"Mul", "mva tva tav tava", "64f 64f_L", "apply::Sums<apply::Ascending, apply::Blocks>"},
    {"Mul", "mv mva mav mava", "32f_S2 64f_S2", "apply::Sums<apply::Ascending, apply::Gathered>"},
    {"Mul", "tv tva tav tava", "32f_S2 64f_S2", "apply::Sums<apply::Ascending, apply::OneByOne>"},
    {"Mul", "mva tva mav tav mava tava", "32f_LS2 64f_LS2", "apply::Singles"},
    {"Mul", "mv tv mva tva mav tav mava tava", "32f_P 64f_P", "apply::Sums<apply::Ascending, apply::OneByOne>"},
    {"Gaxpy", "mvav", "32f", "apply::Sums<apply::ResidentOrBatched, apply::OneByOne>"},
    {"Gaxpy", "", "32f 32f_L", "apply::Sums<apply::Resident, apply::OneByOne>"},
    {"Gaxpy", "", "64f 64f_L 32f_P 64f_P", "apply::Sums<apply::Ascending, apply::OneByOne>"},
    {"Gaxpy", "", "32f_S2 32f_LS2 64f_S2 64f_LS2", "apply::Sums<apply::Ascending, apply::Gathered>"},
    // Which aligned batches add neighbouring products first.
    {"DotProduct", "vava", "32f 64f", "AlignedPairs"},
    {"DotProduct", "vav", "32f 64f", "AlignedVectors"},
    {"DotProduct", "vav", "32f_L", "AlignedBlocks"},
    // Orders with a sum of their own.
    {"FrobNorm", "m", "32f 64f", "norm::To5"},
    {"FrobNorm", "ma", "32f 32f_L 64f 64f_L", "norm::From3To6"},
    {"FrobNorm", "", "32f_P 64f_P", "norm::Only3"},
    {"CholeskyDecomp", "ma", "32f", "cholesky::FourObjects"},
    {"CholeskyDecomp", "", "32f 32f_L", "cholesky::SplitSums"},
    {"CholeskyDecomp", "", "32f_P 64f_P", "cholesky::ElementTables"},
    {"CholeskyDecomp", "ma", "64f_S2", "cholesky::LimitedLoops"},
    {"CholeskyDecomp", "", "", "cholesky::InOrder"},
    {"CholeskyBackSubst", "mva", "32f 32f_S2", "cholesky::FourVectors"},
    {"CholeskyBackSubst", "mv", "32f", "cholesky::SplitSums"},
    {"CholeskyBackSubst", "", "", "cholesky::InOrder"},
    {"Det", "m", "32f 64f", "determinant::Extended"},
    {"Det", "ma", "32f_L 64f 64f_L", "determinant::Extended"},
    {"Det", "ma", "32f", "determinant::ByOrder"},
    {"Det", "", "", "determinant::Element"},
    {"Invert", "ma", "32f", "inverse::ContiguousArray32"},
    {"Invert", "", "32f 32f_L", "inverse::Contiguous32"},
    {"Invert", "", "64f 64f_L", "inverse::Contiguous64"},
    {"Invert", "", "", "inverse::AnyStride"},
    {"EigenValuesSym", "m", "", "symmetric::Values"},
    {"EigenValuesSym", "ma", "32f", "symmetric::ValuesAtSmallDeterminants"},
    {"EigenValuesSym", "ma", "32f_L 64f 64f_L", "symmetric::ValuesOfContiguousArray"},
    {"EigenValuesSym", "ma", "", "symmetric::ValuesOfArray"},
    {"EigenValuesVectorsSym", "m", "32f_S2", "symmetric::VectorsJudgedFirst"},
    {"EigenValuesVectorsSym", "m", "", "symmetric::VectorsSortedFirst"},
    {"EigenValuesVectorsSym", "ma", "", "symmetric::VectorsOfArray"},
    {"AffineTransform3DH", "", "32f", "InPairs"},
    {"AffineTransform3DH", "", "32f_S2", "InTurn"},
};

/// Array functions that stay serial although their kin have a driver.
inline constexpr std::string_view kSerial[] = {"Sub_vva_64f_P", "CrossProduct_vva_64f_P"};

}  // namespace zelm::catalog
