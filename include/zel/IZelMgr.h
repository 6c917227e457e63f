#pragma once

#include <zel/CZelBox.h>
#include <zel/CZelColor.h>
#include <zel/CZelPixel2D.h>
#include <zel/CZelPoint.h>
#include <zel/CZelPoint2D.h>
#include <zel/CZelRenderParameters.h>
#include <zel/CZelUUID.h>
#include <zel/CZelVersion.h>
#include <zel/CZelVertex.h>
#include <zel/IAltitudeNode.h>
#include <zel/IChessNode.h>
#include <zel/ICustomNode.h>
#include <zel/IFresnelDiffuseNode.h>
#include <zel/IFresnelNode.h>
#include <zel/IGlazingNode.h>
#include <zel/ILeafNode.h>
#include <zel/IMappingNode.h>
#include <zel/IMatteShadowNode.h>
#include <zel/IMultiTextureNode.h>
#include <zel/IRootNode.h>
#include <zel/ITCENode.h>
#include <zel/ITable.h>
#include <zel/ITurbulenceNode.h>
#include <zel/IUnknown.h>
#include <zel/IWangTilesNode.h>
#include <zel/IZel3DPath.h>
#include <zel/IZel3DPlant.h>
#include <zel/IZel3DPlantRef.h>
#include <zel/IZelAnimatedElement.h>
#include <zel/IZelAnimatedObject.h>
#include <zel/IZelAnimatedObjectInstance.h>
#include <zel/IZelAnimation.h>
#include <zel/IZelAtmosphere.h>
#include <zel/IZelBBMgrData.h>
#include <zel/IZelBBObjectInstance.h>
#include <zel/IZelBackground.h>
#include <zel/IZelBackgroundPicture.h>
#include <zel/IZelBasic.h>
#include <zel/IZelBasicData.h>
#include <zel/IZelBezierPoint.h>
#include <zel/IZelBillboard.h>
#include <zel/IZelCamKey.h>
#include <zel/IZelCamera.h>
#include <zel/IZelCameraLight.h>
#include <zel/IZelCameraPath.h>
#include <zel/IZelClippingBox.h>
#include <zel/IZelClouds.h>
#include <zel/IZelCompressionOpt.h>
#include <zel/IZelDepthOfField.h>
#include <zel/IZelEngineOptions.h>
#include <zel/IZelEnvironment.h>
#include <zel/IZelExposureFilter.h>
#include <zel/IZelExtStorageReader.h>
#include <zel/IZelExtStorageWriter.h>
#include <zel/IZelExternalDefinition.h>
#include <zel/IZelFeedback.h>
#include <zel/IZelFileInfo.h>
#include <zel/IZelFilters.h>
#include <zel/IZelFog.h>
#include <zel/IZelForeground.h>
#include <zel/IZelGodRays.h>
#include <zel/IZelGrainFilter.h>
#include <zel/IZelGround.h>
#include <zel/IZelGroupInstances.h>
#include <zel/IZelHatchingFilter.h>
#include <zel/IZelHeliodon.h>
#include <zel/IZelImage.h>
#include <zel/IZelImageSettingsFilter.h>
#include <zel/IZelInsertionObject.h>
#include <zel/IZelInternalComponentInstance.h>
#include <zel/IZelInterpolatedValue.h>
#include <zel/IZelKeyFrame.h>
#include <zel/IZelLaser.h>
#include <zel/IZelLayer.h>
#include <zel/IZelLayerInfo.h>
#include <zel/IZelLensFlare.h>
#include <zel/IZelLight.h>
#include <zel/IZelLightCone.h>
#include <zel/IZelLightsGroup.h>
#include <zel/IZelMgrEx.h>
#include <zel/IZelMgrRef.h>
#include <zel/IZelMultiMaps.h>
#include <zel/IZelObjectInstance.h>
#include <zel/IZelObjectLight.h>
#include <zel/IZelObjectLightRef.h>
#include <zel/IZelObjectLink.h>
#include <zel/IZelObjectLinkRef.h>
#include <zel/IZelObjectMgrBase.h>
#include <zel/IZelPanoLinkV2.h>
#include <zel/IZelPanoNodeV2.h>
#include <zel/IZelPanoramaV2.h>
#include <zel/IZelParallelView.h>
#include <zel/IZelPlace.h>
#include <zel/IZelPolygon.h>
#include <zel/IZelProperty.h>
#include <zel/IZelQuad.h>
#include <zel/IZelRadiosityControl.h>
#include <zel/IZelReadStream.h>
#include <zel/IZelRenderingOpt.h>
#include <zel/IZelScenario.h>
#include <zel/IZelScenarioTimeGuide.h>
#include <zel/IZelSequence.h>
#include <zel/IZelSharedPtrBase.h>
#include <zel/IZelSkylight.h>
#include <zel/IZelSnd.h>
#include <zel/IZelString.h>
#include <zel/IZelSubPart.h>
#include <zel/IZelTCE.h>
#include <zel/IZelTexture.h>
#include <zel/IZelTime.h>
#include <zel/IZelToneSettings.h>
#include <zel/IZelViewBasic.h>
#include <zel/IZelViewInfo.h>
#include <zel/IZelViewObject.h>
#include <zel/IZelViewOpt.h>
#include <zel/IZelVignettingFilter.h>
#include <zel/IZelWarning.h>
#include <zel/IZelWriteStream.h>
#include <zel/IZelXML.h>
#include <zel/IZelZelObjectDefinition.h>
#include <zel/IZelZelObjectInstance.h>
#include <zel/TZelObjectMgr.h>
#include <zel/ZelExport.h>
#include <zel/ZelIdentifiers.h>
#include <zel/xml/XIXMLAttribute.h>
#include <zel/xml/XIXMLComment.h>
#include <zel/xml/XIXMLData.h>
#include <zel/xml/XIXMLElement.h>
#include <zel/xml/XIXMLInstruction.h>

namespace OvZel {

/// A generation of the boundary. newZelMgr takes 30 to 50, getMgrEx 5 to 50.
enum EVersionZEL : std::int32_t {
    eVersionZelOldest = 30, ///< the oldest that newZelMgr takes
    eVersionZel = 50,       ///< that of these headers
};
/// A generation of what getMgrEx gives.
enum EExtendedVersionZEL : std::int32_t {
    eExtendedVersionZel = 50, ///< that of these headers
};

/// A scene document: the tree of its file, its lists of objects, its pictures and settings.
///
/// A document comes from newZelMgr and is at once an empty, valid scene. It is used by one thread
/// at a time; different documents and the probes may run in parallel. AddRef and Release may come
/// from any thread, and the last Release destroys the document at once, whatever objects a client
/// still holds: those stay valid, but find no document any more.
///
/// Pointers that it returns carry no reference and live as long as the document, texts until the
/// next change of the same value. Failures go to IZelFeedback::message as a text; the operation
/// then returns false, null or an empty text.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelMgr : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"67E24B082AA7410BA0695588DA262039"};

    /// What checkFormat2 finds.
    enum eReadability : std::int32_t {
        eUnknown = 0,          ///< no document of this format
        eOlder = 1,            ///< written by a library before 6.0.4
        eRecent = 2,           ///< written by 6.0.4 or 6.0.5
        eSame = 3,             ///< written by this version, 6.0.6
        eNewer = 4,            ///< written by a newer library, readable
        eNewerWithLoss = 5,    ///< written by a newer library, readable with loss
        eTooNew = 6,           ///< too new to be read
        eOtherApplication = 7, ///< written by an application that isn't known
    };

    /// The categories of doImportReference.
    enum eImport : std::int32_t {
        /// Materials of instances and internal components, and the ground's: only overwritten.
        eImportMaterials = 0x001,
        eImportLights = 0x010,    ///< lights with their groups
        eImportHeliodons = 0x020, ///< suns
        eImportInstances = 0x040, ///< instances with their layers, and the ground if it is active
        eImportCameras = 0x080,   ///< perspective views
        eImportParallelViews = 0x100, ///< parallel views
        eImportViewObjects = 0x200,   ///< turntables
        eImportPanoramas = 0x400,     ///< panoramas that have nodes
        eImportSequences = 0x800,     ///< those of the first scenario
    };

    /// Makes a document. *out is released first when it isn't null. A failure, such as
    /// "Client is newer than Zel Library!" above 50 or "Client is obsolete for this Zel Library!"
    /// below 30, goes to the feedback with a null document and leaves *out null. The feedback may
    /// be null, isn't counted and must outlive the document. A null out does nothing.
    static ZEL_API void newZelMgr(IZelMgr** out, EVersionZEL clientVersion, IZelFeedback* feedback);
    /// The newest generation that the loaded library takes, eVersionZel of its own headers.
    static ZEL_API EVersionZEL getZELVersion();
    /// The same for getMgrEx.
    static ZEL_API EExtendedVersionZEL getExtendedZelVersion();

    /// Whether this library can read the stream, without loading it. readability, version and label
    /// may be null. version takes the version of the writing library, and stays as it is when the
    /// stream is no document; label takes a text such as "Vendralis (6.0)", cut to labelSize bytes
    /// with its NUL, and stays as it is when the result is false. The stream's position is put
    /// back. Raises and reports nothing.
    static ZEL_API bool checkFormat2(IZelReadStream* stream, eReadability* readability,
                                     CZelVersion* version, char* label, std::uint32_t labelSize);
    /// The preview picture of a file, without loading it: *out takes one reference for the caller,
    /// or null; what *out held before is not released. The stream stays where the search stopped.
    /// Raises and reports nothing.
    static ZEL_API void readPreviewImage(IZelImage** out, IZelReadStream* stream);
    /// Origin and identifier of a file, without loading it: *out takes one reference for the
    /// caller; what wasn't found is zero. What *out held before is not released. The stream's
    /// position is put back; where that fails *out is null. A stream that can't be parsed gives a
    /// line on standard output for each of the two, and nothing is raised.
    static ZEL_API void readFileInfo(IZelFileInfo** out, IZelReadStream* stream);
    /// Merges a fresh export, the source, into the tuned destination: each category whose bit is
    /// set in flags, a sum of eImport. No other bit has an effect.
    ///
    /// Objects pair by their exact name, the first of that name counts; lights groups, animated
    /// elements and 3D paths pair by identifier, instances by identifier and layer. A partner is
    /// overwritten in place, an object without partner is added at the end, nothing is ever
    /// removed. An identifier comes over only where the file form of the class always holds one:
    /// instances, layers, lights groups, sequences, animated elements and 3D paths. Instances that
    /// lie on no layer of the source have no partner: a second import adds them again.
    ///
    /// Views bring along the environment, the heliodon and the lights groups that they name, lights
    /// their groups; lights, heliodons, instances and sequences bring their animation.
    ///
    /// Instances of the source are put on the layers of the destination, so that an open source
    /// serves one call. The read transform of the destination (setMatrix) acts on all that comes
    /// in. The same document twice does nothing.
    ///
    /// An object that cannot be written or read warns on its document and is passed over or left
    /// half-read, without what it would bring along. Throws std::exception for a null document and
    /// when an object cannot be made; what was done until then stays done. Neither document may be
    /// in use elsewhere.
    static ZEL_API void doImportReference(IZelMgr* destination, IZelMgr* source,
                                          std::int32_t flags);

protected:
    ~IZelMgr() override = default;

public:
    /// Name and version of the writing application, saved with the document; empty at first. A
    /// null text counts as empty.
    virtual void setApplication(const char* name, const char* version) = 0;
    /// Never null.
    virtual const char* getApplicationName() const = 0;
    /// Never null.
    virtual const char* getApplicationVersion() const = 0;
    /// Both give the same object.
    virtual IZelFileInfo* getFileInfo() = 0;
    /// As getFileInfo.
    virtual IZelFileInfo* getFileInfo2() = 0;
    /// The further operations, for a client of generation 5 to 50; else null with a message as in
    /// newZelMgr.
    virtual IZelMgrEx* getMgrEx(EVersionZEL clientVersion) = 0;
    /// The library version in the file last read, 0.0.0 before.
    virtual const CZelVersion* getLibraryVersion() const = 0;
    /// Replaces the content of the document by that of the stream; lists whose section the file
    /// lacks stay as they are. A null reader keeps the meshes in the document. False after a
    /// failure or a cancel, both told on the feedback: after a cancel or a syntax error the file's
    /// frame that was in force before is still in force, after a later failure lists are partly
    /// filled. A block of pictures or geometry that fails alone gives a message, not a failure.
    virtual bool read(IZelReadStream* stream, IZelExtStorageReader* reader) = 0;
    /// writeVersion with a null version.
    virtual bool write(IZelWriteStream* stream, IZelExtStorageWriter* writer) = 0;
    /// Major and minor of the file generation last read, 5 and 1 before. Either may be null. Always
    /// true.
    virtual bool getFileVersion(std::int32_t* major, std::int32_t* minor) const = 0;
    /// The perspective views.
    virtual TZelObjectMgr<IZelCamera>* getCameras() = 0;
    /// The document's own mesh, saved only while the document has no internal components.
    virtual TZelObjectMgr<IZelPolygon>* getPolygons() = 0;
    /// The points of the document's own mesh.
    virtual TZelObjectMgr<CZelPoint>* getPoints() = 0;
    /// The materials of the document. Polygons of its own mesh name them by index.
    virtual TZelObjectMgr<IZelProperty>* getProperties() = 0;
    /// The artificial lights.
    virtual TZelObjectMgr<IZelLight>* getLights() = 0;
    /// The views that turn around an object.
    virtual TZelObjectMgr<IZelViewObject>* getViewObjects() = 0;
    /// The parallel views.
    virtual TZelObjectMgr<IZelParallelView>* getParallelViews() = 0;
    /// The suns; a new document has one, named "Heliodon".
    virtual TZelObjectMgr<IZelHeliodon>* getHeliodons() = 0;
    /// The groups that lights belong to.
    virtual TZelObjectMgr<IZelLightsGroup>* getLightsGroups() = 0;
    /// The picture shown for the file. A load of a file by library 5 or later leaves it empty:
    /// take it with readPreviewImage and give it back with setImage before a save.
    virtual IZelImage* getPreviewImage() = 0;
    /// Pictures that are kept in the document.
    virtual TZelObjectMgr<IZelImage>* getImages() = 0;
    /// The scene itself as one definition, saved as one whatever its class, without a mesh.
    virtual IZelZelObjectDefinition* getObjectDefinition() = 0;
    /// What is placed in the scene.
    virtual TZelObjectMgr<IZelObjectInstance>* getObjectInstances() = 0;
    /// As IZelMgrRef::getLanguage and setLanguage.
    virtual const char* getLanguage() const = 0;
    virtual void setLanguage(const char* language) = 0;
    /// The comment of that number ahead of the root element, or null.
    virtual const char* getComment(std::int32_t index) = 0;
    /// Replaces the comment of that number, removes it when the text is null, or adds a comment
    /// when there are fewer. Returns the number of the comment; 0xFFFFFFFF when there was nothing
    /// to remove or after a failure. A comment must not contain "-->": the next save would fail.
    virtual std::uint32_t setComment(const char* text, std::int32_t index) = 0;
    /// Where the document was saved; empty at first.
    virtual const char* getURL() = 0;
    virtual void setURL(const char* url) = 0;
    /// An element for client data under the given tag, made if it isn't there; null for a null or
    /// empty tag. It isn't saved: each write removes all such elements. Sections of this data must
    /// not be named "Image", "Points" or "Polygons".
    virtual OrvaneXML::XIXMLElement* getApplicationData(const char* tag) = 0;
    /// The time lines.
    virtual TZelObjectMgr<IZelScenario>* getScenarios() = 0;
    /// Paths through the scene, named by interpolated values.
    virtual TZelObjectMgr<IZel3DPath>* get3DPaths() = 0;
    /// The environments. One that no view names is not saved.
    virtual TZelObjectMgr<IZelEnvironment>* getEnvironments() = 0;
    /// The grounds.
    virtual TZelObjectMgr<IZelGround>* getGrounds() = 0;
    /// Both give the same list.
    virtual TZelObjectMgr<IZelLayer>* getLayers() = 0;
    /// As getLayers.
    virtual TZelObjectMgr<IZelLayer>* getLayers2() = 0;
    /// The active layer and the layers for new objects of each class; part of the document.
    virtual IZelLayerInfo* getLayerInfo() = 0;
    /// The internal components. A document that has any saves their meshes and not its own.
    virtual TZelObjectMgr<IZelZelObjectDefinition>* getDefinitions() = 0;
    /// The supplier of meshes for saves that are given none; returns the one before. Not counted.
    virtual IZelExtStorageWriter* setExtStorageWriter(IZelExtStorageWriter* writer) = 0;
    /// Takes only pictures and geometry out of a stream, and leaves everything else as it is.
    virtual void readCData(IZelReadStream* stream, IZelExtStorageReader* reader) = 0;
    /// Saves the document. A null writer means the one of setExtStorageWriter, or the document's
    /// own meshes. The version (may be null) is what the file claims to be readable by; it changes
    /// nothing else. False after a failure, told on the feedback; the stream then holds part of a
    /// file, the lists are untouched, and a further save may succeed. Nothing may change the
    /// document during the call.
    virtual bool writeVersion(IZelWriteStream* stream, IZelExtStorageWriter* writer,
                              const CZelVersion* version) = 0;
    /// Takes the name of the scene's definition out of a stream, without loading it. Always true.
    virtual bool readMediaInfo(IZelReadStream* stream) = 0;
    /// The panoramas.
    virtual TZelObjectMgr<IZelPanoramaV2>* getPanoramas() = 0;
    /// As IZelMgrRef::getMatrix and setMatrix.
    virtual const double* getMatrix() const = 0;
    virtual void setMatrix(const double* matrix) = 0;
    /// The definitions that live in files of their own.
    virtual TZelObjectMgr<IZelExternalDefinition>* getExternalDefinitions() = 0;
};

} // namespace OvZel
