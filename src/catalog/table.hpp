// table.hpp: every family of the library, one row each, as constant data. The only place where a function is declared by hand.
//
// A row stands for several forms that share arguments, cost and formula; expand() in catalog.cpp turns rows into functions.
//   forms      operand tags as they stand in the name. `a` behind a letter: an array of such objects
//   arguments  the argument list in order. src, src1, dst, ... stand for an operand's whole group (pointer, strides or shifts);
//              val for a constant: by value, or in memory where the form says `ca`. height falls away where no operand is a
//              matrix, count where none is an array. A name behind a colon is the number of columns of the stored operand
//   cost       32-bit wrapping; c = count, w = width, h = height, n = order, or the length of a vector. Empty: always serial
//   limits     cost at which the driver takes over: contiguous/strided for 32f 32f_L 32f_P 64f 64f_L 64f_P
//   formula    the template that computes it. Empty: not built yet, and then no trace of the family is in the library
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
inline constexpr std::string_view kMulShapes = "sources as stored: height1 x width1, height2 x width2";
inline constexpr std::string_view kMulVectorShapes = "A height x width as stored; b src2Len elements";
inline constexpr std::string_view kSquareShapes = "square matrices of order widthHeight";
inline constexpr std::string_view kSolveShapes = "A of order widthHeight; b and x widthHeight elements";

inline constexpr std::string_view kSymmetricBuffer =
    "square matrices of order n = widthHeight; pBuffer n * n elements of the matrices' type";
inline constexpr std::string_view kVectorBuffer =
    "square matrices of order widthHeight; pBuffer of the bytes that zelmEigenValuesVectorsGetBufSize gives";
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
    {"Copy", "ma va", "src dst width height count", "", "", "elementwise", "move::copy", "$d_ = $a_",
     "objects of height x width", "", "", "", Kernels::none},
    {"Extract", "m ma", "src pDst width height count", "", "", "elementwise", "move::extract",
     "pDst[(k*height + i)*width + j] = $a_", "packed block: height x width", "", "", "", Kernels::none},
    {"Extract", "t ta", "src pDst width height count", "", "", "elementwise", "move::extract",
     "pDst[(k*height + i)*width + j] = $a_", "packed block: height x width; stored source: width x height", "", "", "",
     Kernels::none},
    {"Extract", "v va", "src pDst width count", "", "", "elementwise", "move::extract", "pDst[k*width + j] = $a_",
     kVectorShapes, "", "", "", Kernels::none},
    {"LoadIdentity", "ma", "dst width height count", "", "", "elementwise", "move::load_identity",
     "D[k](i, j) = 1 where i == j, else 0", "D height x width", "", "", "", Kernels::none},
    {"Transpose", "m ma", "src width height dst:height count", "", "", "elementwise", "move::transpose",
     "D(j, i) = A(i, j) of every object", "source height x width; destination width x height"},

    // Products
    {"Mul", "mm mt tm tt", "src1:width1 width1 height1 src2:width2 width2 height2 dst:product count", "", "", "products", "",
     "$d = $a * $b", kMulShapes, "", "", "inner"},
    {"Mul", "mam mat tam tat mama mata tama tata mma mta tma tta",
     "src1:width1 width1 height1 src2:width2 width2 height2 dst:product count", "product", kProductLimits, "products", "",
     "$d = $a * $b", kMulShapes, "", "", "inner"},
    {"Mul", "mv tv", "src1 width height src2 src2Len dst count", "", "", "products", "", "$d = $a * $b", kMulVectorShapes, "",
     "", "inner"},
    {"Mul", "mav tav mava tava mva tva", "src1 width height src2 src2Len dst count", "product", kProductLimits, "products", "",
     "$d = $a * $b", kMulVectorShapes, "", "", "inner"},
    {"Gaxpy", "mv", "src1 width height src2 src2Len src3 src3Len dst count", "", "", "products", "", "$d = $a * $b + $c",
     "A height x width; b src2Len, c src3Len elements", "", "", "width == src2Len && height == src3Len"},
    {"Gaxpy", "mva", "src1 width height src2 src2Len src3 src3Len dst count", "(w+2*h)*c", kGaxpyLimits, "products", "",
     "$d = $a * $b + $c", "A height x width; b src2Len, c src3Len elements", "", "", "width == src2Len && height == src3Len"},
    {"Gaxpy", "mvav", "src1 width height src2 src2Len src3 src3Len dst count", "c*w+c*h+h", kGaxpyLimits, "products", "",
     "$d = $a * $b + $c", "A height x width; b src2Len, c src3Len elements", "", "", "width == src2Len && height == src3Len"},
    {"DotProduct", "vv", "src1 src2 pDst width count", "", "", "products", "", "*pDst = sum over j of $a_ * $b_",
     kVectorShapes},
    {"DotProduct", "vav", "src1 src2 pDst width count", "c*n+n", kDotLimits, "products", "",
     "pDst[k] = sum over j of $a_ * $b_", kVectorShapes},
    {"DotProduct", "vava", "src1 src2 pDst width count", "2*c*n", kDotLimits, "products", "",
     "pDst[k] = sum over j of $a_ * $b_", kVectorShapes},
    {"CrossProduct", "vv", "src1 src2 dst count", "", "", "products", "", "$d = $a x $b", "vectors of 3 elements"},
    {"CrossProduct", "vav vva", "src1 src2 dst count", "2*c", "3000/3000 3000/3000 3000 3000/3000 3000/3000 3000", "products",
     "", "$d = $a x $b", "vectors of 3 elements"},
    {"CrossProduct", "vava", "src1 src2 dst count", "3*c", "3001/3001 3001/3001 3001 3001/3001 3001/3001 3001", "products", "",
     "$d = $a x $b", "vectors of 3 elements"},
    {"L2Norm", "v", "src pDst width count", "", "", "products", "", "*pDst = sqrt(sum over j of $a_^2)", kVectorShapes},
    {"L2Norm", "va", "src pDst width count", "c*n", "1501/1501 1501/1501 1501 1501/1501 1501/1501 1501", "products", "",
     "pDst[k] = sqrt(sum over j of $a_^2)", kVectorShapes},
    {"FrobNorm", "m", "src width height pDst count", "", "", "products", "", "*pDst = sqrt(sum over i, j of $a_^2)",
     "A height x width", "", "", "", Kernels::one},
    {"FrobNorm", "ma", "src width height pDst count", "c*w*h", "2501/1801 1601/1601 1501 1801/1501 1601/1601 2501", "products",
     "", "pDst[k] = sqrt(sum over i, j of $a_^2)", "A height x width"},
    {"Trace", "m", "src widthHeight pDst count", "", "", "products", "", "*pDst = sum over i of A(i, i)", kSquareShapes},
    {"Trace", "ma", "src widthHeight pDst count", "c*n", "3601/3601 3601/3601 3601 3601/3601 3601/3601 3601", "products", "",
     "pDst[k] = sum over i of A[k](i, i)", kSquareShapes},

    // Linear systems
    {"LUDecomp", "m ma", "src pDstIndex dst widthHeight count", "c*n*n", "1001/1001 1001/1001 1001 1001/1001 1001/1001 1001",
     "solvers", "lu::decompose",
     "P A = L U with partial pivoting by rows. D holds both factors in A's row order: with p the object's n entries of "
     "pDstIndex, row p[k] of D is row k of U and, left of its diagonal, of the unit lower L",
     kSquareShapes, "zelStsSingular"},
    {"LUBackSubst", "mv", "src1 pSrcIndex src2 dst widthHeight count", "", "", "solvers", "lu::solve",
     "solves A x = b from the factors and the row order that zelmLUDecomp wrote", kSolveShapes},
    {"LUBackSubst", "mva", "src1 pSrcIndex src2 dst widthHeight count", "n*n+2*c*n", "701/701 701/701 701 701/701 701/701 701",
     "solvers", "lu::solve", "solves A x[k] = b[k] from the factors and the row order that zelmLUDecomp wrote", kSolveShapes},
    {"LUBackSubst", "mava", "src1 pSrcIndex src2 dst widthHeight count", "(n+2)*n*c",
     "1201/1201 1201/1201 1201 1201/1201 1201/1201 1201", "solvers", "lu::solve",
     "solves A[k] x[k] = b[k] from the factors and the row orders that zelmLUDecomp wrote", kSolveShapes},
    {"CholeskyDecomp", "m ma", "src dst widthHeight count", "c*n*n", "7501/7501 2001/2001 2001 2001/2001 721/2001 2001",
     "solvers", "",
     "A = L L^T, A symmetric positive definite, of which the lower triangle is read. D holds the lower triangle of L, with the "
     "reciprocals of L's diagonal on its diagonal",
     kSquareShapes, "zelStsNotPositiveDefinite"},
    {"CholeskyBackSubst", "mv", "src1 src2 dst widthHeight count", "", "", "solvers", "",
     "solves A x = b from the factor that zelmCholeskyDecomp wrote", kSolveShapes},
    {"CholeskyBackSubst", "mva", "src1 src2 dst widthHeight count", "n*n+2*c*n", "1201/1201 721/721 721 721/721 721/721 721",
     "solvers", "", "solves A x[k] = b[k] from the factor that zelmCholeskyDecomp wrote", kSolveShapes},
    {"CholeskyBackSubst", "mava", "src1 src2 dst widthHeight count", "(n+2)*n*c",
     "2051/1701 1701/1701 1701 1701/1701 1701/1701 2051", "solvers", "",
     "solves A[k] x[k] = b[k] from the factors that zelmCholeskyDecomp wrote", kSolveShapes},
    {"QRDecomp", "m ma", "src pBuffer dst width height count", "2*c*w*h", kQRLimits, "solvers", "",
     "A = Q R by Householder reflections. D holds R and, below its diagonal, the reflection vectors (leading 1 left out)",
     "A and D height x width, width <= height; pBuffer height elements", "zelStsDivideByZero", "h*E", "width <= height"},
    {"QRBackSubst", "mv", "src1 pBuffer src2 dst width height count", "", "", "solvers", "",
     "least-squares solution of A x = b from the result of zelmQRDecomp",
     "A height x width; b height, x width elements; pBuffer height elements", "", "", "width <= height"},
    {"QRBackSubst", "mva", "src1 pBuffer src2 dst width height count", "w*h+c*w+c*h", kQRLimits, "solvers", "",
     "least-squares solution of A x[k] = b[k] from the result of zelmQRDecomp",
     "A height x width; b height, x width elements; pBuffer height elements", "", "h*E", "width <= height"},
    {"QRBackSubst", "mava", "src1 pBuffer src2 dst width height count", "c*w*h+c*w+c*h", kQRLimits, "solvers", "",
     "least-squares solution of A[k] x[k] = b[k] from the results of zelmQRDecomp",
     "A height x width; b height, x width elements; pBuffer height elements", "", "h*E", "width <= height"},
    {"Det", "m", "src widthHeight pBuffer pDst count", "", "", "solvers", "", "*pDst = det(A)", kSquareShapes},
    {"Det", "ma", "src widthHeight pBuffer pDst count", "c*n", "14401/14401 14401/14401 14401 14401/14401 14401/14401 14401",
     "solvers", "", "pDst[k] = det(A[k])", kSquareShapes, "", "(n*n+n)*E"},
    {"Invert", "m ma", "src pBuffer dst widthHeight count", "2*c*n", "3601/2501 2501/2501 2501 2501/2501 2501/2501 2501",
     "solvers", "", "$d = inverse of $a", kSquareShapes, "zelStsSingular", "(n*n+n)*E"},

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
     "neighbouring places, the positive imaginary part first. A subdiagonal element of at most epsilon counts as zero whatever "
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
    {"Add", "v2 v3 v4", "pSrc1 pSrc2 pDst", "", "", "geometry", "", "D = A + B", ""},
    {"Sub", "v2 v3 v4", "pSrc1 pSrc2 pDst", "", "", "geometry", "", "D = A - B", ""},
    {"MulC", "v2 v3 v4", "pSrc val pDst", "", "", "geometry", "", "D = A * val", ""},
    {"Min", "v2 v3 v4", "pSrc1 pSrc2 pDst", "", "", "geometry", "", "D = the smaller of each pair of elements", ""},
    {"Max", "v2 v3 v4", "pSrc1 pSrc2 pDst", "", "", "geometry", "", "D = the larger of each pair of elements", ""},
    {"LenSqr", "v2 v3 v4", "pSrc pDst", "", "", "geometry", "", "*pDst = sum of squares", ""},
    {"Len", "v2 v3 v4", "pSrc pDst", "", "", "geometry", "", "*pDst = length", ""},
    {"Normalize", "v2 v3 v4", "pSrc pDst", "", "", "geometry", "", "D = A / length of A", ""},
    {"DotProduct", "v2 v3 v4", "pSrc1 pSrc2 pDst", "", "", "geometry", "", "*pDst = A . B", ""},
    {"CrossProduct", "v2", "pSrc1 pSrc2 pDst", "", "", "geometry", "", "*pDst = a0 b1 - a1 b0", ""},
    {"CrossProduct", "v3", "pSrc1 pSrc2 pDst", "", "", "geometry", "", "D = A x B", ""},
    {"CrossProduct", "v4", "pSrc1 pSrc2 pSrc3 pDst", "", "", "geometry", "", "D = A x B x C", ""},
    {"BaryCentric", "v2 v3 v4", "pSrc1 pSrc2 pSrc3 weight1 weight2 pDst", "", "", "geometry", "",
     "D = A + (B - A) weight1 + (C - A) weight2", ""},
    {"Hermite", "v2 v3 v4", "pPoint0 pTangent0 pPoint1 pTangent1 weight pDst", "", "", "geometry", "",
     "point of a Hermite curve", ""},
    {"InterpolationLinear", "v2 v3 v4", "pSrc1 pSrc2 weight pDst", "", "", "geometry", "", "D = A + (B - A) weight", ""},
    {"InterpolationCatmullRom", "v2 v3 v4", "pSrc1 pSrc2 pSrc3 pSrc4 weight pDst", "", "", "geometry", "",
     "point of a Catmull-Rom curve between pSrc2 and pSrc3", ""},
    {"Identity", "m4", "pDst", "", "", "geometry", "", "D = I", ""},
    {"IsIdentity", "m4", "pSrc pResult", "", "", "geometry", "", "*pResult = 1 for the identity, else 0", ""},
    {"Translation", "m4", "x y z pDst", "", "", "geometry", "", "translation by (x, y, z)", ""},
    {"Scaling", "m4", "x y z pDst", "", "", "geometry", "", "scaling by x, y, z", ""},
    {"RotationX", "m4", "angle pDst", "", "", "geometry", "", "rotation about the x axis; radians", ""},
    {"RotationY", "m4", "angle pDst", "", "", "geometry", "", "rotation about the y axis; radians", ""},
    {"RotationZ", "m4", "angle pDst", "", "", "geometry", "", "rotation about the z axis; radians", ""},
    {"RotationAxis", "v3m4", "pAxis angle pDst", "", "", "geometry", "", "rotation about an axis; radians", ""},
    {"RotationYawPitchRoll", "m4", "yaw pitch roll pDst", "", "", "geometry", "", "rotation by three angles; radians", ""},
    {"LookAtLH", "m4", "pEye pAt pUp pDst", "", "", "geometry", "", "left-handed view matrix", ""},
    {"LookAtRH", "m4", "pEye pAt pUp pDst", "", "", "geometry", "", "right-handed view matrix", ""},
    {"PerspectiveLH", "m4", "viewWidth viewHeight zNear zFar pDst", "", "", "geometry", "", "left-handed perspective", ""},
    {"PerspectiveRH", "m4", "viewWidth viewHeight zNear zFar pDst", "", "", "geometry", "", "right-handed perspective", ""},
    {"PerspectiveFovLH", "m4", "fovY aspect zNear zFar pDst", "", "", "geometry", "", "left-handed perspective by angle", ""},
    {"PerspectiveFovRH", "m4", "fovY aspect zNear zFar pDst", "", "", "geometry", "", "right-handed perspective by angle", ""},
    {"PerspectiveOffCenterLH", "m4", "left right bottom top zNear zFar pDst", "", "", "geometry", "",
     "left-handed off-centre perspective", ""},
    {"PerspectiveOffCenterRH", "m4", "left right bottom top zNear zFar pDst", "", "", "geometry", "",
     "right-handed off-centre perspective", ""},
    {"OrthoLH", "m4", "viewWidth viewHeight zNear zFar pDst", "", "", "geometry", "", "left-handed orthographic", ""},
    {"OrthoRH", "m4", "viewWidth viewHeight zNear zFar pDst", "", "", "geometry", "", "right-handed orthographic", ""},
    {"OrthoOffCenterLH", "m4", "left right bottom top zNear zFar pDst", "", "", "geometry", "",
     "left-handed off-centre orthographic", ""},
    {"OrthoOffCenterRH", "m4", "left right bottom top zNear zFar pDst", "", "", "geometry", "",
     "right-handed off-centre orthographic", ""},
    {"Mul", "mm4x4", "pSrc1 pSrc2 pDst", "", "", "geometry", "", "D = A * B; null pointers are refused", ""},
    {"MulTranspose", "m4", "pSrc1 pSrc2 pDst", "", "", "geometry", "", "D = (A * B)^T", ""},
    {"Transpose", "m4", "pSrc pDst", "", "", "geometry", "", "D = A^T", ""},
    {"Det", "m4", "pSrc pDst", "", "", "geometry", "", "*pDst = det(A)", ""},
    {"Invert", "m4", "pSrc pDet pDst", "", "", "geometry", "", "D = inverse of A; pDet may be null", "", "zelStsSingular"},
    {"AffineTransform", "m4v2 m4v3 m4v4", "pMatrix pSrc pDst", "", "", "geometry", "", "D = A * M, 4 elements", ""},
    {"AffineTransform", "m4v2a m4v3a m4v4a", "pMatrix pSrc srcStride0 pDst dstStride0 count", "", "", "geometry", "",
     "D[k] = A[k] * M, 4 elements each", ""},
    {"AffineTransformCoord", "m4v2 m4v3", "pMatrix pSrc pDst", "", "", "geometry", "", "point A * M, divided by w", ""},
    {"AffineTransformCoord", "m4v2a m4v3a", "pMatrix pSrc srcStride0 pDst dstStride0 count", "", "", "geometry", "",
     "points A[k] * M, divided by w", ""},
    {"AffineTransformNormal", "m4v2 m4v3", "pMatrix pSrc pDst", "", "", "geometry", "", "direction A * M", ""},
    {"AffineTransformNormal", "m4v2a m4v3a", "pMatrix pSrc srcStride0 pDst dstStride0 count", "", "", "geometry", "",
     "directions A[k] * M", ""},
    {"Project", "m4v3", "pProjection pView pWorld pSrc vpWidth vpHeight vpMinZ vpMaxZ pDst", "", "", "geometry", "",
     "point in the world to point on the screen", ""},
    {"Project", "m4v3a", "pProjection pView pWorld pSrc srcStride0 vpWidth vpHeight vpMinZ vpMaxZ pDst dstStride0 count", "",
     "", "geometry", "", "points in the world to points on the screen", ""},
    {"Unproject", "m4v3", "pProjection pView pWorld pSrc vpWidth vpHeight vpMinZ vpMaxZ pDst", "", "", "geometry", "",
     "point on the screen to point in the world", "", "zelStsSingular"},
    {"Unproject", "m4v3a", "pProjection pView pWorld pSrc srcStride0 vpWidth vpHeight vpMinZ vpMaxZ pDst dstStride0 count", "",
     "", "geometry", "", "points on the screen to points in the world", "", "zelStsSingular"},
    {"AffineTransform3DH", "mva", "src1 src2 dst count", "6*c", "785/785", "geometry", "",
     "(x', y', z', w') = M (x, y, z, 1); D[k] = (x', y', z') / w'", "M 4 x 4; points of 3 elements", "zelStsDivideByZero"},
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

/// Kernels of one family that differ in more than their views: in the order of their sums, in a limit, in the sizes that have a
/// path of their own. The first entry that covers a kernel gives its formula's first template argument.
struct Variant {
  std::string_view operation, forms, kernels, policy;  // kernels: "32f 32f_S2 32f_L 32f_LS2 32f_P 64f ..."; empty: all
};

inline constexpr Variant kVariants[] = {
    {"EigenValuesSym", "m", "", "symmetric::Values"},
    {"EigenValuesSym", "ma", "32f", "symmetric::ValuesAtSmallDeterminants"},
    {"EigenValuesSym", "ma", "32f_L 64f 64f_L", "symmetric::ValuesOfContiguousArray"},
    {"EigenValuesSym", "ma", "", "symmetric::ValuesOfArray"},
    {"EigenValuesVectorsSym", "m", "32f_S2", "symmetric::VectorsJudgedFirst"},
    {"EigenValuesVectorsSym", "m", "", "symmetric::VectorsSortedFirst"},
    {"EigenValuesVectorsSym", "ma", "", "symmetric::VectorsOfArray"},
};

/// Array functions that stay serial although their kin have a driver.
inline constexpr std::string_view kSerial[] = {"Sub_vva_64f_P", "CrossProduct_vva_64f_P"};

}  // namespace zelm::catalog
