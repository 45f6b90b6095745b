#pragma once

/// @file
/// What a frame needs to know to create its view.
class CDocument;
class CFrameWnd;
class CView;
struct CRuntimeClass;
class CDocTemplate;

/// Travels from the maker of a frame through CFrameWnd::OnCreateClient to the view. All members may be null.
struct CCreateContext
{
    CRuntimeClass* m_pNewViewClass = nullptr; ///< class of the view to create, with dynamic creation
    CDocument* m_pCurrentDoc = nullptr;       ///< document that the view joins
    CDocTemplate* m_pNewDocTemplate = nullptr;
    CView* m_pLastView = nullptr;         ///< the view a new frame is modelled on
    CFrameWnd* m_pCurrentFrame = nullptr; ///< the frame a new frame is modelled on
};
