#pragma once

// The front door: APMQDF is one printer's QDF document in memory, and two functions load one.
//
// A host loads a document, asks it which options exist and which may be combined, and destroys it.
// A document is used from one thread at a time; separate documents share nothing. Answers are
// copies, which stay valid when the document is gone. Failure is a result of 0 or a null pointer;
// nothing is thrown, also when memory runs out, and nothing is reported in words.

#include <initializer_list>
#include <memory>
#include <vector>

#include "qdf/core/qdfnode.h"
#include "qdf/definition/records.h"
#include "qdf/support/aarrays.h"
#include "qdf/support/afilepath.h"
#include "qdf/support/astring.h"
#include "qdf/support/export.h"

class AXMLTree;
class AXMLTreeNode;
class ChildIndexes;
class DeferredDithers;

// Hosts call through the table of virtual operations: the order of the virtual members is an
// interface and never changes.
//
// The list queries append copies of records to the vector that they get, in the order of the
// document's list, and never clear it. Unless told otherwise they answer 1 when the vector holds
// anything on return, else 0, and set the default position to where in the vector the preselected
// record was appended, 0 when none was.
class APMQDF_EXPORT APMQDF {
 public:
  APMQDF();
  virtual ~APMQDF();
  APMQDF(const APMQDF&) = delete;
  APMQDF& operator=(const APMQDF&) = delete;

 private:
  // Takes a loaded document in: the lists of Definition first, then the two trees, which keep only
  // ids that the lists hold. 0 when the tree is null or one of the five mandatory lists (inks,
  // media, print modes, resolutions, colour modes) is empty; what was read until then stays.
  virtual int ParseFromXMLTree(AXMLTree* tree);

  // The first colour mode node on a path of these five ids; 0, and the output left alone, without a
  // path.
  virtual int FindColorModeNode(const int& ink, const int& media, const int& printMode,
                                const int& resolution, const int& colorMode, CQDFNode*& node);

 public:
  // Meant for a fresh object, once. 0 when the file can't be read, isn't well-formed XML or isn't a
  // whole document; the object then holds what was read before that showed.
  virtual int LoadQDFFile(AFilePath& path);

  // The cascade: each step takes all ids chosen so far and answers what may follow them. Of several
  // paths through the tree for these ids the first that is complete counts. Without a path the
  // result is 0, and the vector stays as it was.
  //
  // Every ink of the document, in use or not. Here the default position is that in the document's
  // list.
  virtual int GetInkTypeList(std::vector<InkTypeInfo>& inks, int& defaultPosition);
  virtual int GetMediaTypeList(const int& ink, std::vector<MediaTypeInfo>& media,
                               int& defaultPosition);
  virtual int GetPrintModeList(const int& ink, const int& media,
                               std::vector<PrintModeInfo>& printModes, int& defaultPosition);
  virtual int GetResolutionList(const int& ink, const int& media, const int& printMode,
                                std::vector<ResolutionInfo>& resolutions, int& defaultPosition);
  virtual int GetColorModeList(const int& ink, const int& media, const int& printMode,
                               const int& resolution, std::vector<ColorModeInfo>& colorModes,
                               int& defaultPosition);

  // The names that a combination allows, in document order, and the default among them, empty when
  // there is none. The name "ALL" in any case allows every name: the vector is then emptied and
  // holds just "ALL". A default profile must be one of the vector's names, unless that allows all
  // or is empty; a default dither may be any. Without a path the result is 0, the default empty and
  // the vector as it was.
  virtual int GetProfileList(const int& ink, const int& media, const int& printMode,
                             const int& resolution, const int& colorMode,
                             std::vector<AString>& profiles, AString& defaultProfile);
  virtual int GetDitherList(const int& ink, const int& media, const int& printMode,
                            const int& resolution, const int& colorMode,
                            std::vector<AString>& dithers, AString& defaultDither);

  // The combination's text for the device. A combination without one leaves the output alone; the
  // result is 1 when a path was found and the output isn't empty.
  virtual int GetOEMInfo(const int& ink, const int& media, const int& printMode,
                         const int& resolution, const int& colorMode, AString& text);

  // Copies the number, since resolutions have no display ids beside their ids; always answers 1.
  virtual int GetResolutionIDFromDisplayID(const int& ink, const int& media, const int& printMode,
                                           const int& displayID, int& resolution);

  // Whole lists, whatever may be combined.
  virtual int GetFullInkTypeList(std::vector<InkTypeInfo>& inks);
  virtual int GetFullMediaTypeList(std::vector<MediaTypeInfo>& media);
  virtual int GetFullPrintModeList(std::vector<PrintModeInfo>& printModes);
  virtual int GetFullResolutionList(std::vector<ResolutionInfo>& resolutions);
  virtual int GetFullColorModeInfoList(std::vector<ColorModeInfo>& colorModes);
  virtual int GetFullMediaSourceInfoList(std::vector<MediaSourceInfo>& mediaSources);

  // The resolution at which a job is rasterised for a dither of a combination, by the dither's name
  // with case. 1 when the document gives one; else 0 and both numbers 0.0. Nothing is found for a
  // name of more than 64 characters, since the document's own are cut there.
  virtual int GetRipResolutionForDither(const int& ink, const int& media, const int& printMode,
                                        const int& resolution, const int& colorMode,
                                        const AString& dither, double& x, double& y);

  // Copies of the document's header texts, empty when it has none. The last two are file names
  // under the folder OutputDrivers.
  virtual AString GetProdcutType();
  virtual AString GetTranslationTable();
  virtual AString GetCustomMediaFile();

  // Makes the lists and the control tree from HPResourceInfo records; for a fresh object. Inks are
  // copied from the previous document, and media that it had keep their ids. 0 when a step has no
  // result; what was derived before it stays. The arrays stay as they are, and nothing of them is
  // kept.
  virtual int LoadHPResourceInfo(APtrArray& resources, APtrArray& oldInks, APtrArray& oldMedia);

  virtual int GetFullMarginInfoList(std::vector<MarginInfo>& margins);
  virtual int GetFullMediaSizeInfoList(std::vector<MediaSizeInfo>& mediaSizes);

  // The cascade of media sources: only sources that the tree names, then the sizes of a source,
  // then the margins of a size. Of several nodes for an id only the first counts, also where it
  // leads nowhere.
  virtual int GetMediaSourceList(std::vector<MediaSourceInfo>& mediaSources, int& defaultPosition);
  virtual int GetMediaSizeList(const int& mediaSource, std::vector<MediaSizeInfo>& mediaSizes,
                               int& defaultPosition);
  virtual int GetMarginInfoList(const int& mediaSource, const int& mediaSize,
                                std::vector<MarginInfo>& margins, int& defaultPosition);

  // Both always answer 1; zeros when the document doesn't say. The limits come in the document's
  // order, the margins as its third, fourth, first and second number.
  virtual int GetMediaSizeLimits(double& first, double& second, double& third, double& fourth);
  virtual int GetMinimumMargin(double& first, double& second, double& third, double& fourth);

  // Takes over what HP resources don't hold: the header texts, the limits and margins in the order
  // in which the two operations above hand them out, deep copies of the records and of the tree,
  // which may be null. For a fresh object. 0 when memory runs out, else 1.
  virtual int InitiateAPMQDF(const AString& productType, const AString& translationTable,
                             const AString& customMediaFile, double limit1, double limit2,
                             double limit3, double limit4, double margin1, double margin2,
                             double margin3, double margin4, APtrArray& mediaSources,
                             APtrArray& mediaSizes, APtrArray& margins, CQDFNode* mediaSourceRoot);

  // Never null, valid while the document lives, and owned by it.
  virtual CQDFNode* GetMediaSourceTreeRoot();

  // Writes the document, whole or not, to the file, in place. There is no result: a host that wants
  // to know loads what was written. A file whose new content can't be stored, or can't be made for
  // lack of memory, keeps the former one.
  //
  // The written form holds less than a document may: one ink node, the first, with all that is
  // under it; no default ink; a default dither where it isn't read, dither names in capitals and no
  // RIP resolutions; no list of dithers beside "ALL"; of a colorant only names, depth and spot
  // colour; no default margins, and of margin nodes only what GetMarginInfoList answers; six
  // decimals of a number and none of a resolution. Media are written with their UnlocalizedName,
  // all else with the current DisplayName.
  void PMWriteQDF(AFilePath& path);

  // Appends a deep copy of what is in and under the source to the target, and sets the target's
  // Default. False, and nothing changed, for a null source and when memory runs out. The target may
  // be the source, but nothing below it.
  bool PMCopyMediaSourceTreeRoot(CQDFNode* source, CQDFNode* target);

 private:
  friend struct DocumentLists;
  friend struct DocumentMembers;

  // Reads the limits and the minimum margins; 1 when the document has at least one of them.
  int PMGetMediaLimits(AXMLTree* tree);

  AString MakeStringUponIDArray(ADWordArray& ids);

  const CQDFNode* FindControlPath(std::initializer_list<int> ids);

  // What a load put off, of one colour mode node or of all. To be called by whoever looks at their
  // leaves; FindColorModeNode does so for the node that it answers.
  void ReadDithersOf(const CQDFNode& colorMode);
  void ReadDeferredDithers();
  DeferredDithers& ControlDithers();

  void PMWriteDefinitionPart(AXMLTree& tree, const AXMLTreeNode& definition);
  void PMWriteMediaSourceDef(AXMLTree& tree, const AXMLTreeNode& definition);
  void PMWriteMarginInfoDef(AXMLTree& tree, const AXMLTreeNode& definition);
  void PMWriteMediaSizeDef(AXMLTree& tree, const AXMLTreeNode& definition);
  void PMWriteInkTypeDef(AXMLTree& tree, const AXMLTreeNode& definition);
  void PMWriteMediaTypeDef(AXMLTree& tree, const AXMLTreeNode& definition);
  void PMWritePrintModeTypeDef(AXMLTree& tree, const AXMLTreeNode& definition);
  void PMWriteResolutionTypeDef(AXMLTree& tree, const AXMLTreeNode& definition);
  void PMWriteColorModeDef(AXMLTree& tree, const AXMLTreeNode& definition);
  void PMWriteColorant(AXMLTree& tree, AXMLTreeNode& element, ANewColorOpt* colorant);

  void PMWriteControlPart(AXMLTree& tree);
  void WriteMediaControlPart(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node);
  void WritePrintModeControlPart(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node);
  void WriteResolutionControlPart(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node);
  void WriteColorModeControlPart(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node);

  void PMWriteMediaSourceControlPart(AXMLTree& tree);
  void WriteMediaSourceControlPart(AXMLTree& tree, AXMLTreeNode& element, CQDFNode* node);

  // Pointers to records of the kind that the name tells, all owned by the document.
  APtrArray InkList;
  APtrArray MediaList;
  APtrArray PrintModeList;
  APtrArray ResolutionList;
  APtrArray ColorModeList;
  APtrArray MediaSourceList;
  APtrArray MarginInfoList;
  APtrArray MediaSizeList;
  // Distinct texts, which the nodes of the control tree refer to by index.
  AStringArray OEMInfoList;
  AStringArray ICCProfileList;
  AStringArray DitherNameList;
  APtrArray DitherResolutionList;
  CQDFNode ControlTreeRoot;
  AString ProductType;
  AString TranslationTable;
  AString CustomMediaFile;
  CQDFNode MediaSourceTreeRoot;
  double MediaSizeLimits[4] = {};
  double MinimumMargins[4] = {};

  // Of the control tree; owns the records of DitherResolutionList.
  std::unique_ptr<DeferredDithers> Dithers;
  // Of the control tree, while it is whole.
  std::unique_ptr<ChildIndexes> ControlIndexes;

  // The answer of the work, or `failure` and LackedMemory set when memory ran out: some answers
  // look the same in both cases, and the writer must not take the one for the other.
  template <class Result, class Work>
  Result Guarded(Result failure, Work work);
  bool LackedMemory = false;
};

extern "C" {

// Loads the document at the path into a new object, which the caller owns and deletes. The slot is
// null when nothing stands at the path or LoadQDFFile gives 0.
APMQDF_EXPORT void PMGetQDFInterface(AFilePath& path, APMQDF** document);

// The same for the document of that name in the folder OutputDrivers under the working folder. The
// slot is null for a null or empty name as well.
APMQDF_EXPORT void PMGetQDFInterfaceFromName(const char* name, APMQDF** document);

}  // extern "C"
