// The catalog against lists written out by hand.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "support/harness.hpp"

namespace zelm::test {
namespace {

using catalog::Kind;
using std::string;

/// The `name:value` words of a text.
std::vector<std::pair<string, string>> pairs(const char* text) {
  std::istringstream in(text);
  std::vector<std::pair<string, string>> out;
  for (string word; in >> word;) out.push_back({word.substr(0, word.find(':')), word.substr(word.find(':') + 1)});
  return out;
}

TEST(Catalog, HasAllNamesOnceAndInOrder) {
  std::vector<string> names;
  int drivers = 0;
  for (const Function& f : catalog::functions()) {
    names.push_back(f.exported());
    drivers += !f.driver().empty();
  }
  EXPECT_EQ(names.size(), 874u);
  EXPECT_EQ(drivers, 515);
  EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
  EXPECT_EQ(std::set<string>(names.begin(), names.end()).size(), names.size());
}

const char kSignatures[] = R"(
Add_mam_32f(const float* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, const float* pSrc2, int
    src2Stride1, int src2Stride2, float* pDst, int dstStride0, int dstStride1, int dstStride2, int width, int height,
    int count)
Add_mam_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride1, int src1Stride2, const float* pSrc2, int
    src2Stride1, int src2Stride2, float* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width,
    int height, int count)
Add_mam_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, const float* const* ppSrc2, int
    src2ByteShift, float* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count)
Sub_tta_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, const double* const* ppSrc2, int src2ByteShift,
    int src2Stride1, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int
    width, int height, int count)
Add_vc_64f(const double* pSrc, int srcStride2, double val, double* pDst, int dstStride2, int width)
Add_vca_64f_P(const double* const* ppSrc, int srcByteShift, const double* pVal, int valStride0, double* const* ppDst,
    int dstByteShift, int dstStride0, int width, int count)
Sub_cav_32f_L(const float* pSrc, int srcStride2, const float* const* ppVal, int valByteShift, float* const* ppDst, int
    dstByteShift, int dstStride2, int width, int count)
Mul_tac_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double val, double* const* ppDst, int
    dstByteShift, int dstStride0, int width, int height, int count)
Saxpy_vva_32f_P(const float* const* ppSrc1, int src1ByteShift, float val, const float* const* ppSrc2, int
    src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift, int dstStride0, int width, int count)
LComb_vava_64f(const double* pSrc1, int src1Stride0, int src1Stride2, double val1, const double* pSrc2, int
    src2Stride0, int src2Stride2, double val2, double* pDst, int dstStride0, int dstStride2, int width, int count)
Copy_ma_32f_SP(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, float* const* ppDst, int
    dstByteShift, int dstStride0, int width, int height, int count)
Copy_va_64f_LS(const double* const* ppSrc, int srcByteShift, int srcStride2, double* pDst, int dstStride0, int
    dstStride2, int width, int count)
Extract_ta_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2, float* pDst, int width,
    int height, int count)
LoadIdentity_ma_64f_P(double* const* ppDst, int dstByteShift, int dstStride0, int width, int height, int count)
Transpose_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2, int width, int
    height, double* const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int count)
Mul_tat_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, int width1, int height1, const float*
    const* ppSrc2, int src2ByteShift, int width2, int height2, float* const* ppDst, int dstByteShift, int dstStride0,
    int count)
Mul_mma_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, int width1, int height1, const double* const*
    ppSrc2, int src2ByteShift, int src2Stride1, int src2Stride2, int width2, int height2, double* const* ppDst, int
    dstByteShift, int dstStride1, int dstStride2, int count)
Mul_tav_64f(const double* pSrc1, int src1Stride0, int src1Stride1, int src1Stride2, int width, int height, const
    double* pSrc2, int src2Stride2, int src2Len, double* pDst, int dstStride0, int dstStride2, int count)
Gaxpy_mv_32f_P(const float* const* ppSrc1, int src1ByteShift, int width, int height, const float* const* ppSrc2, int
    src2ByteShift, int src2Len, const float* const* ppSrc3, int src3ByteShift, int src3Len, float* const* ppDst, int
    dstByteShift)
Gaxpy_mva_64f(const double* pSrc1, int src1Stride1, int src1Stride2, int width, int height, const double* pSrc2, int
    src2Stride0, int src2Stride2, int src2Len, const double* pSrc3, int src3Stride0, int src3Stride2, int src3Len,
    double* pDst, int dstStride0, int dstStride2, int count)
Gaxpy_mvav_32f_L(const float* pSrc1, int src1Stride1, int src1Stride2, int width, int height, const float* const*
    ppSrc2, int src2ByteShift, int src2Stride2, int src2Len, const float* pSrc3, int src3Stride2, int src3Len, float*
    const* ppDst, int dstByteShift, int dstStride2, int count)
CrossProduct_vava_64f_P(const double* const* ppSrc1, int src1ByteShift, int src1Stride0, const double* const* ppSrc2,
    int src2ByteShift, int src2Stride0, double* const* ppDst, int dstByteShift, int dstStride0, int count)
DotProduct_vav_32f_L(const float* const* ppSrc1, int src1ByteShift, int src1Stride2, const float* pSrc2, int
    src2Stride2, float* pDst, int width, int count)
L2Norm_va_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, double* pDst, int width, int count)
FrobNorm_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, int width, int height, float* pDst,
    int count)
Trace_m_64f_P(const double* const* ppSrc, int srcByteShift, int widthHeight, double* pDst)
LUDecomp_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, int* pDstIndex, float* const* ppDst,
    int dstByteShift, int dstStride0, int widthHeight, int count)
LUBackSubst_mva_64f_L(const double* pSrc1, int src1Stride1, int src1Stride2, const int* pSrcIndex, const double*
    const* ppSrc2, int src2ByteShift, int src2Stride2, double* const* ppDst, int dstByteShift, int dstStride2, int
    widthHeight, int count)
CholeskyBackSubst_mava_32f_P(const float* const* ppSrc1, int src1ByteShift, int src1Stride0, const float* const*
    ppSrc2, int src2ByteShift, int src2Stride0, float* const* ppDst, int dstByteShift, int dstStride0, int
    widthHeight, int count)
QRDecomp_ma_64f_L(const double* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2, void* pBuffer, double*
    const* ppDst, int dstByteShift, int dstStride1, int dstStride2, int width, int height, int count)
QRBackSubst_mva_32f(const float* pSrc1, int src1Stride1, int src1Stride2, void* pBuffer, const float* pSrc2, int
    src2Stride0, int src2Stride2, float* pDst, int dstStride0, int dstStride2, int width, int height, int count)
Det_ma_64f_P(const double* const* ppSrc, int srcByteShift, int srcStride0, int widthHeight, void* pBuffer, double*
    pDst, int count)
Invert_ma_32f(const float* pSrc, int srcStride0, int srcStride1, int srcStride2, void* pBuffer, float* pDst, int
    dstStride0, int dstStride1, int dstStride2, int widthHeight, int count)
EigenValuesVectorsSym_ma_32f_L(const float* const* ppSrc, int srcByteShift, int srcStride1, int srcStride2, void*
    pBuffer, float* const* ppDstVectors, int dstByteShift, int dstStride1, int dstStride2, float* pDstValues, int
    widthHeight, int count)
EigenValues_ma_64f(const double* pSrc, int srcStride0, int srcStride1, int srcStride2, double* pDstValuesRe, double*
    pDstValuesIm, int widthHeight, int count, void* pBuffer)
EigenValuesVectors_ma_32f_P(const float* const* ppSrc, int srcByteShift, int srcStride0, float* const*
    ppDstVectorsRight, int dstRightByteShift, int dstRightStride0, float* const* ppDstVectorsLeft, int
    dstLeftByteShift, int dstLeftStride0, float* pDstValuesRe, float* pDstValuesIm, int widthHeight, int count, void*
    pBuffer)
EigenValuesVectorsLeft_m_64f(const double* pSrc, int srcStride1, int srcStride2, double* pDstVectors, int dstStride1,
    int dstStride2, double* pDstValuesRe, double* pDstValuesIm, int widthHeight, void* pBuffer)
EigenValuesGetBufSize_32f(int widthHeight, int* pSize)
CrossProduct_v4_32f(const float* pSrc1, const float* pSrc2, const float* pSrc3, float* pDst)
Hermite_v3_32f(const float* pPoint0, const float* pTangent0, const float* pPoint1, const float* pTangent1, float
    weight, float* pDst)
IsIdentity_m4_32f(const float* pSrc, int* pResult)
PerspectiveOffCenterLH_m4_32f(float left, float right, float bottom, float top, float zNear, float zFar, float* pDst)
Invert_m4_32f(const float* pSrc, float* pDet, float* pDst)
AffineTransformCoord_m4v2a_32f(const float* pMatrix, const float* pSrc, int srcStride0, float* pDst, int dstStride0,
    int count)
Unproject_m4v3a_32f(const float* pProjection, const float* pView, const float* pWorld, const float* pSrc, int
    srcStride0, float vpWidth, float vpHeight, float vpMinZ, float vpMaxZ, float* pDst, int dstStride0, int count)
AffineTransform3DH_mva_32f(const float* pSrc1, int src1Stride1, int src1Stride2, const float* pSrc2, int src2Stride0,
    int src2Stride2, float* pDst, int dstStride0, int dstStride2, int count)
GetLibVersion()
)";

TEST(Catalog, SignaturesAreThoseOfTheContract) {
  std::istringstream words(kSignatures);
  string text;
  for (string word; words >> word;) text += (text.empty() ? "" : " ") + word;
  std::istringstream lines(text);
  int compared = 0;
  for (string line; std::getline(lines >> std::ws, line, ')'); ++compared) {
    const auto open = line.find('(');
    const Function& f = function("zelm" + line.substr(0, open));
    string arguments;
    for (const catalog::Argument& a : f.arguments) arguments += (arguments.empty() ? "" : ", ") + a.type + " " + a.name;
    EXPECT_EQ(arguments, line.substr(open + 1)) << f.name;
    EXPECT_EQ(f.result(), f.name == "GetLibVersion" ? "const ZelLibVersion*" : "ZelStatus") << f.name;
  }
  EXPECT_EQ(compared, 47);
}

/// The steps of the order for which the function has arguments.
string effective_order(const Function& f) {
  const auto has = [&](Kind kind) {
    return std::any_of(f.arguments.begin(), f.arguments.end(), [=](const auto& a) { return a.kind == kind; });
  };
  const bool product = f.row->operation == "Mul" || f.row->operation == "Gaxpy";
  const std::map<char, bool> used = {{'P', has(Kind::pointer)},
                                     {'C', has(Kind::count)},
                                     {'N', has(Kind::size)},
                                     {'S', has(Kind::stride)},
                                     {'s', has(Kind::stride)},
                                     {'G', has(Kind::stride)},
                                     {'B', has(Kind::shift)},
                                     {'b', has(Kind::shift)},
                                     {'M', !f.mismatch.empty() && product},
                                     {'W', !f.mismatch.empty() && !product}};
  string out;
  for (const char step : f.order)
    if (used.at(step)) out += step;
  return out;
}

// S: strides of all operands; s and b: of the sources, ahead of those of the outputs; G: stride0, where count is
// above 1.
const char kOrders[] = R"(
Add_mam_32f:PCSN Add_mam_32f_L:PCNSB Add_mam_64f_P:PCNSB Sub_mma_64f:PCSN Sub_mma_64f_L:PCNSB Sub_tam_32f:PCNS
Add_mm_32f:PNS Add_mm_64f_P:PNB Add_vav_64f:PNSC Sub_vav_32f_L:PNSBC Sub_vav_64f_P:PNSCB Sub_vva_32f:PCNS
Mul_mama_64f_L:PCNMSB Mul_tv_32f:PNMS Gaxpy_mvav_32f_P:PCNMSB CrossProduct_vv_32f:PS CrossProduct_vv_64f_P:PB
CrossProduct_vav_32f:PSC CrossProduct_vav_32f_L:PSBC CrossProduct_vav_64f_P:PSCB CrossProduct_vva_64f_P:PCSB
CrossProduct_vava_32f:PCS AffineTransform3DH_mva_32f:PCS CholeskyBackSubst_mva_64f_L:PSBNC
CholeskyBackSubst_mva_64f_P:PCNSB CholeskyBackSubst_mava_32f_L:PCNSB QRDecomp_m_32f_P:PNBW
QRBackSubst_mava_64f_L:PCNSBW EigenValues_ma_32f:PNCS EigenValuesSym_ma_32f_L:PNCBS
EigenValuesVectorsSym_ma_64f_P:PNCBS EigenValuesVectors_ma_32f:PNCS EigenValuesVectorsRight_ma_64f_P:PNCbsBS
EigenValuesGetBufSize_32f:PN Extract_ta_64f:PNCS Extract_va_32f_P:PNCBS Extract_m_32f_P:NPB Extract_t_64f_P:NPB
Extract_v_64f_P:NPB Extract_v_32f_P:PNB Extract_v_64f:PNS LoadIdentity_ma_64f:PNCSG LoadIdentity_ma_32f_L:PNCSB
LoadIdentity_ma_32f_P:PNBCG LoadIdentity_ma_64f_P:PNCBG Copy_ma_32f_PL:PNCSBG Copy_va_64f_LP:PNCSBG
Copy_va_32f_LP:PNCBSG Det_ma_32f_L:PCNSB
)";

TEST(Catalog, OrdersOfChecksAreThoseOfTheContract) {
  for (const auto& [name, order] : pairs(kOrders)) EXPECT_EQ(effective_order(function("zelm" + name)), order) << name;
}

// Cells of the table of limits that stand out from their row, and functions that stay serial (0), of families that are
// not built: of the others frame/limits_test.cpp knows all.
const char kLimits[] = R"(
Mul_tva_64f_L:3601/1441 Gaxpy_mva_32f_L:7001/501 Gaxpy_mvav_64f_P:7001/7001 Det_ma_32f:14401/14401 Invert_ma_32f:3601/2501 CholeskyDecomp_ma_64f_L:721/2001
CholeskyBackSubst_mava_32f:2051/1701 CholeskyBackSubst_mava_64f_P:2051/2051 QRBackSubst_mva_64f:2801/2801
EigenValues_ma_32f_L:251/251 EigenValuesSym_ma_64f:1001/1001 EigenValuesVectors_ma_64f_P:501/501
EigenValuesVectorsSym_ma_32f:701/701 AffineTransform3DH_mva_32f:785/785 EigenValuesVectorsLeft_ma_32f_L:0/0
)";

TEST(Catalog, LimitsAreThoseOfTheContract) {
  for (const auto& [name, limits] : pairs(kLimits)) {
    const Function& f = function("zelm" + name);
    EXPECT_EQ(std::to_string(f.limit[0]) + "/" + std::to_string(f.limit[1]), limits) << name;
    EXPECT_EQ(f.driver().empty(), limits == "0/0") << name;
  }
}

}  // namespace
}  // namespace zelm::test
