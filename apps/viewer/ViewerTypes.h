#pragma once

#include "Assessment.h"
#include "CameraProfiles.h"
#include "DocumentList.h"
#include "Exporter.h"
#include "FeatureModel.h"
#include "FieldModel.h"
#include "FileOrder.h"
#include "FilmBrowser.h"
#include "FlatWall.h"
#include "Guidance.h"
#include "KindModel.h"
#include "MeasurementEditor.h"
#include "MeasurementModel.h"
#include "OverlayView.h"
#include "PictureFilter.h"
#include "PipeRecord.h"
#include "PointModel.h"
#include "Preferences.h"
#include "StageView.h"
#include "Viewer.h"

#include <QtQml/qqml.h>

namespace Drevon::Zalento {

// The types of the QML module Drevon.Zalento.Viewer, for the type registrar and for the engine.

struct FileOrderType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::FileOrder)
    QML_NAMED_ELEMENT(FileOrder)
};

struct PictureFilterType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::PictureFilter)
    QML_NAMED_ELEMENT(PictureFilter)
};

struct OverlayViewType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::OverlayView)
    QML_NAMED_ELEMENT(OverlayView)
};

struct StageViewType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::StageView)
    QML_NAMED_ELEMENT(StageView)
};

struct PreferencesType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::Preferences)
    QML_NAMED_ELEMENT(Preferences)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct GuidanceType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::Guidance)
    QML_NAMED_ELEMENT(Guidance)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct DocumentListType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::DocumentList)
    QML_NAMED_ELEMENT(DocumentList)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct MeasurementEditorType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::MeasurementEditor)
    QML_NAMED_ELEMENT(MeasurementEditor)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct MeasurementModelType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::MeasurementModel)
    QML_NAMED_ELEMENT(MeasurementModel)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct AssessmentType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::Assessment)
    QML_NAMED_ELEMENT(Assessment)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct FilmBrowserType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::FilmBrowser)
    QML_NAMED_ELEMENT(FilmBrowser)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct FlatWallType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::FlatWall)
    QML_NAMED_ELEMENT(FlatWall)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct FeatureModelType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::FeatureModel)
    QML_NAMED_ELEMENT(FeatureModel)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct PointModelType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::PointModel)
    QML_NAMED_ELEMENT(PointModel)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct KindModelType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::KindModel)
    QML_NAMED_ELEMENT(KindModel)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct FieldModelType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::FieldModel)
    QML_NAMED_ELEMENT(FieldModel)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct CameraProfilesType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::CameraProfiles)
    QML_NAMED_ELEMENT(CameraProfiles)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct ExporterType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::Exporter)
    QML_NAMED_ELEMENT(Exporter)
    QML_UNCREATABLE("it is a part of Viewer")
};

struct PipeRecordsType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::PipeRecords)
    QML_NAMED_ELEMENT(PipeRecords)
    QML_UNCREATABLE("it is a part of Viewer")
};

// Of the engine that the viewer belongs to, see ViewerWindow.
struct ViewerType
{
    Q_GADGET
    QML_FOREIGN(Drevon::Zalento::Viewer)
    QML_NAMED_ELEMENT(Viewer)
    QML_SINGLETON
};

} // namespace Drevon::Zalento
